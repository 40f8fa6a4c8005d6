// Sends one request to the service's dispatcher: the input's first line is
// the member (or its first byte picks one), the rest the payload. Whatever
// arrives, the service answers with a JSON object holding "ret" and goes on;
// it must never end.
#include <glib.h>

#include <cstdlib>
#include <ctime>
#include <string>
#include <vector>

#include "catalogue.h"
#include "dispatcher.h"

namespace {

using namespace zunde::service;

Dispatcher& TheDispatcher() {
  // A fresh store under TMPDIR, left for whoever made TMPDIR to remove.
  static gchar* dir = g_mkdtemp(g_build_filename(g_get_tmp_dir(), "zunde-dispatch-fuzz-XXXXXX", nullptr));
  static Store store(std::string(dir) + "/zunde-service.db");
  static Catalogue catalogue = [] {
    Catalogue made = DefaultCatalogue(12);
    made.now = std::time(nullptr);
    return made;
  }();
  static Dispatcher dispatcher(store, catalogue);
  return dispatcher;
}

// Every member the service knows, so that a byte can name one.
const std::vector<std::string>& MemberNames() {
  static const std::vector<std::string> names = [] {
    std::vector<std::string> all;
    for (const MemberTable* table : AllMemberTables()) {
      for (const Member& member : *table) all.push_back(member.name);
    }
    return all;
  }();
  return names;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string input(reinterpret_cast<const char*>(data), size);
  // A first byte from 0x80 up picks a known member; text names one itself.
  if (size > 0 && data[0] >= 0x80) input.replace(0, 1, MemberNames()[(data[0] - 0x80) % MemberNames().size()] + "\n");
  const std::size_t end = input.find('\n');
  const std::string member = input.substr(0, end);
  const std::string payload = end == std::string::npos ? "" : input.substr(end + 1);
  std::vector<Event> events;
  Json::Value answer;
  if (!Json::Reader().parse(TheDispatcher().Answer(member, payload, events), answer) || !answer.isObject() ||
      !answer["ret"].isBool()) {
    std::abort();
  }
  return 0;
}
