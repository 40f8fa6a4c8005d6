// Sends one request to the service's dispatcher: the input's first line is
// the member, the rest the payload. Whatever arrives, the service answers
// with a JSON object holding "ret" and goes on; it must never end.
#include <glib.h>

#include <cstdlib>
#include <ctime>
#include <string>

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

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string input(reinterpret_cast<const char*>(data), size);
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
