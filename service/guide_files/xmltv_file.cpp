#include "xmltv_file.h"

#include "xml_stream.h"

namespace zunde::service::guide {
namespace {

template <typename Each>
void ForChildren(xmlNodePtr parent, const char* name, Each each) {
  for (xmlNodePtr child = parent->children; child != nullptr; child = child->next) {
    if (IsElement(child, name)) each(child);
  }
}

std::string FirstText(xmlNodePtr parent, const char* name) {
  std::string text;
  bool found = false;
  ForChildren(parent, name, [&](xmlNodePtr child) {
    if (!found) text = TextOf(child);
    found = true;
  });
  return text;
}

std::string FirstIcon(xmlNodePtr parent) {
  std::string src;
  ForChildren(parent, "icon", [&](xmlNodePtr icon) {
    if (src.empty()) src = AttributeOf(icon, "src");
  });
  return src;
}

std::vector<LangText> Texts(xmlNodePtr parent, const char* name) {
  std::vector<LangText> texts;
  ForChildren(parent, name, [&](xmlNodePtr child) { texts.push_back({AttributeOf(child, "lang"), TextOf(child)}); });
  return texts;
}

XmltvChannel ChannelOf(xmlNodePtr node) {
  XmltvChannel channel;
  channel.id = AttributeOf(node, "id");
  ForChildren(node, "display-name", [&](xmlNodePtr name) { channel.displayNames.push_back(TextOf(name)); });
  channel.lcn = FirstText(node, "lcn");
  channel.icon = FirstIcon(node);
  return channel;
}

XmltvProgramme ProgrammeOf(xmlNodePtr node) {
  XmltvProgramme programme;
  programme.channel = AttributeOf(node, "channel");
  programme.start = AttributeOf(node, "start");
  programme.stop = AttributeOf(node, "stop");
  programme.titles = Texts(node, "title");
  programme.descs = Texts(node, "desc");
  programme.categories = Texts(node, "category");
  ForChildren(node, "rating", [&](xmlNodePtr rating) {
    if (programme.rating.empty()) programme.rating = FirstText(rating, "value");
  });
  programme.icon = FirstIcon(node);
  ForChildren(node, "episode-num", [&](xmlNodePtr episode) {
    programme.episodeNums.push_back({AttributeOf(episode, "system"), TextOf(episode)});
  });
  programme.line = xmlGetLineNo(node);
  return programme;
}

}  // namespace

void ReadXmltv(const std::string& path, const XmltvHandlers& handlers) {
  XmlStream stream(path);
  if (!stream.NextElement(0)) stream.Fail("no root element");
  if (stream.Name() != "tv") stream.Fail("the root element is <" + stream.Name() + ">, not <tv>");
  while (stream.NextElement(1)) {
    const std::string name = stream.Name();
    if (name == "channel" && handlers.channel) handlers.channel(ChannelOf(stream.Expand()));
    if (name == "programme" && handlers.programme) handlers.programme(ProgrammeOf(stream.Expand()));
  }
  // Whatever follows </tv> must still be well-formed.
  while (stream.NextElement(0)) {
  }
}

}  // namespace zunde::service::guide
