// A hardened, streaming view of one XML file (plain or gzip-compressed):
// it never fetches anything (no network, no external entity, no DTD),
// never substitutes entities, and keeps only the element being looked at
// in memory, so a file of any size reads in bounded space.
#ifndef ZUNDE_SERVICE_GUIDE_FILES_XML_STREAM_H
#define ZUNDE_SERVICE_GUIDE_FILES_XML_STREAM_H

#include <libxml/tree.h>
#include <libxml/xmlreader.h>

#include <stdexcept>
#include <string>

namespace zunde::service::guide {

// A file that cannot be read as XML; what() reads "FILE:LINE:COLUMN: why".
struct GuideFileError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

class XmlStream {
 public:
  // Opens `path`; throws GuideFileError when it cannot be opened.
  explicit XmlStream(const std::string& path);
  ~XmlStream();
  XmlStream(const XmlStream&) = delete;
  XmlStream& operator=(const XmlStream&) = delete;

  // Moves to the next element start at depth `depth` (the root is 0);
  // false at the end of the document. Throws GuideFileError on the first
  // error of the parser, naming the file, line and column.
  bool NextElement(int depth);
  // The current element's name.
  std::string Name() const;
  // The current element with everything inside it, valid until the next
  // NextElement(); throws GuideFileError when it is not well-formed.
  xmlNodePtr Expand();
  // Throws GuideFileError naming the current place and `why`.
  [[noreturn]] void Fail(const std::string& why) const;

 private:
  void ThrowIfFailed() const;

  std::string path_;
  xmlTextReaderPtr reader_ = nullptr;
  std::string error_;  // the first error the parser reported
};

// The text of a node's children; "" for none.
std::string TextOf(xmlNodePtr node);
// An attribute's value; "" when absent.
std::string AttributeOf(xmlNodePtr node, const char* name);
// Whether `node` is an element called `name`.
bool IsElement(xmlNodePtr node, const char* name);

}  // namespace zunde::service::guide

#endif
