#include "xml_stream.h"

#include <libxml/entities.h>
#include <libxml/hash.h>
#include <zlib.h>

#include <cerrno>
#include <cstring>
#include <mutex>

namespace zunde::service::guide {
namespace {

// Whatever a document asks to load from outside is refused: guide files
// come from anywhere, and a reference to a URL or a local file must not
// make the service fetch or disclose it.
xmlParserInputPtr RefuseExternal(const char*, const char*, xmlParserCtxtPtr) { return nullptr; }

// Guide files have no use for entities of their own; refusing their
// declarations stops both exponential expansion and references to files
// or URLs before any of them is used.
bool DeclaresEntities(xmlNodePtr node) {
  auto* dtd = reinterpret_cast<xmlDtdPtr>(node);
  const auto count = [](void* table) { return table ? xmlHashSize(static_cast<xmlHashTablePtr>(table)) : 0; };
  return dtd != nullptr && (count(dtd->entities) > 0 || count(dtd->pentities) > 0);
}

void RefuseExternalEntitiesOnce() {
  static std::once_flag once;
  std::call_once(once, [] { xmlSetExternalEntityLoader(RefuseExternal); });
}

// zlib reads plain files as they are and inflates gzip ones.
int ReadGz(void* file, char* buffer, int length) { return gzread(static_cast<gzFile>(file), buffer, length); }
int CloseGz(void* file) { return gzclose(static_cast<gzFile>(file)) == Z_OK ? 0 : -1; }

// No entity substitution, no DTD loading or defaulted attributes, no
// network, and libxml2's limits on text and nesting stay on (no
// XML_PARSE_HUGE), which also bounds entity amplification.
const int kParseOptions = XML_PARSE_NONET | XML_PARSE_NOCDATA | XML_PARSE_COMPACT;

void Collect(void* self, xmlErrorPtr error) {
  std::string& first = *static_cast<std::string*>(self);
  if (error == nullptr || error->level < XML_ERR_ERROR || !first.empty()) return;
  std::string message = error->message ? error->message : "not well-formed";
  message = message.substr(0, message.find('\n'));
  while (!message.empty() && (message.back() == '\n' || message.back() == ' ')) message.pop_back();
  first = std::to_string(error->line) + ":" + std::to_string(error->int2) + ": " + message;
}

}  // namespace

XmlStream::XmlStream(const std::string& path) : path_(path) {
  RefuseExternalEntitiesOnce();
  gzFile file = gzopen(path.c_str(), "rb");
  if (file == nullptr) throw GuideFileError(path + ": " + std::strerror(errno ? errno : ENOENT));
  reader_ = xmlReaderForIO(ReadGz, CloseGz, file, path.c_str(), nullptr, kParseOptions);
  if (reader_ == nullptr) throw GuideFileError(path + ": cannot start the XML reader");
  xmlTextReaderSetStructuredErrorHandler(reader_, Collect, &error_);
}

XmlStream::~XmlStream() { xmlFreeTextReader(reader_); }

void XmlStream::ThrowIfFailed() const {
  if (!error_.empty()) throw GuideFileError(path_ + ":" + error_);
}

// The place of the current node: the parser has often read past it, so its
// own column is only kept while it is still on the node's line.
void XmlStream::Fail(const std::string& why) const {
  const int parserLine = xmlTextReaderGetParserLineNumber(reader_);
  const xmlNodePtr node = xmlTextReaderCurrentNode(reader_);
  const long nodeLine = node ? xmlGetLineNo(node) : -1;
  const bool sameLine = nodeLine <= 0 || nodeLine == parserLine;
  const std::string column = sameLine ? std::to_string(xmlTextReaderGetParserColumnNumber(reader_)) : "1";
  throw GuideFileError(path_ + ":" + std::to_string(sameLine ? parserLine : nodeLine) + ":" + column + ": " + why);
}

bool XmlStream::NextElement(int depth) {
  for (;;) {
    const int read = xmlTextReaderRead(reader_);
    ThrowIfFailed();
    if (read < 0) Fail("not well-formed");
    if (read == 0) return false;
    if (xmlTextReaderNodeType(reader_) == XML_READER_TYPE_DOCUMENT_TYPE &&
        DeclaresEntities(xmlTextReaderCurrentNode(reader_))) {
      Fail("the file declares entities, which guide files do not use");
    }
    const int at = xmlTextReaderDepth(reader_);
    if (at < depth) return false;
    if (at == depth && xmlTextReaderNodeType(reader_) == XML_READER_TYPE_ELEMENT) return true;
  }
}

std::string XmlStream::Name() const {
  const xmlChar* name = xmlTextReaderConstLocalName(reader_);
  return name ? reinterpret_cast<const char*>(name) : "";
}

xmlNodePtr XmlStream::Expand() {
  xmlNodePtr node = xmlTextReaderExpand(reader_);
  ThrowIfFailed();
  if (node == nullptr) Fail("not well-formed");
  return node;
}

std::string TextOf(xmlNodePtr node) {
  xmlChar* text = xmlNodeGetContent(node);
  std::string out = text ? reinterpret_cast<const char*>(text) : "";
  xmlFree(text);
  return out;
}

std::string AttributeOf(xmlNodePtr node, const char* name) {
  xmlChar* value = xmlGetProp(node, reinterpret_cast<const xmlChar*>(name));
  std::string out = value ? reinterpret_cast<const char*>(value) : "";
  xmlFree(value);
  return out;
}

bool IsElement(xmlNodePtr node, const char* name) {
  return node->type == XML_ELEMENT_NODE && xmlStrcmp(node->name, reinterpret_cast<const xmlChar*>(name)) == 0;
}

}  // namespace zunde::service::guide
