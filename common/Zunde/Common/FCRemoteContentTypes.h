// Integer enumerations shared with the service. The library only passes
// their values through, as JSON integers converted with a plain cast; the
// service gives them their meaning.
#ifndef ZUNDE_FCREMOTECONTENTTYPES_H
#define ZUNDE_FCREMOTECONTENTTYPES_H

// The remote content activity: which catalogue a request is about.
enum eRemoteContentActivity : int {
  REMOTE_CONTENT_ACTIVITY_0 = 0,
  REMOTE_CONTENT_ACTIVITY_1 = 1,
  REMOTE_CONTENT_ACTIVITY_2 = 2,
  REMOTE_CONTENT_ACTIVITY_3 = 3,
  REMOTE_CONTENT_ACTIVITY_4 = 4,
};

// The kind of recommendation the service should prefer.
enum eRecommendTypeOption : int {
  RECOMMEND_TYPE_OPTION_0 = 0,
  RECOMMEND_TYPE_OPTION_1 = 1,
  RECOMMEND_TYPE_OPTION_2 = 2,
};

// The TV's input source.
enum ESource : int {
  SOURCE_0 = 0,
  SOURCE_1 = 1,
  SOURCE_2 = 2,
};

#endif
