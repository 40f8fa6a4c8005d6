// Integer enumerations shared with the service. The library names none of
// their values and passes them through as JSON integers, converted with a
// plain cast; the service gives them their meaning. Their underlying type is
// fixed, so every int is a valid value.
#ifndef ZUNDE_FCREMOTECONTENTTYPES_H
#define ZUNDE_FCREMOTECONTENTTYPES_H

// The remote content activity: which catalogue a request is about.
enum eRemoteContentActivity : int {};

// The kind of recommendation the service should prefer.
enum eRecommendTypeOption : int {};

// A TV input source number; -1 means no source.
enum ESource : int {};

#endif
