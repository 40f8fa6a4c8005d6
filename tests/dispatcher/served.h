// The service's dispatcher on a fresh store and the default catalogue at a
// fixed time, asked without a bus.
#ifndef ZUNDE_TESTS_SERVED_H
#define ZUNDE_TESTS_SERVED_H

#include <stdlib.h>
#include <unistd.h>

#include <ctime>
#include <memory>
#include <string>

#include "FCMarshal.h"
#include "dispatcher.h"

namespace zunde::testing {

inline const time_t kFixedNow = 1767268800;  // 2026-01-01 12:00 UTC

class Served {
 public:
  // The guide window starts from `now`.
  explicit Served(int lineupSize = 60, time_t now = std::time(nullptr))
      : catalogue_(service::DefaultCatalogue(lineupSize)) {
    char path[] = "/tmp/zunde-dispatcher-XXXXXX";
    close(mkstemp(path));
    path_ = path;
    store_ = std::make_unique<service::Store>(path_);
    catalogue_.now = now;
    dispatcher_ = std::make_unique<service::Dispatcher>(*store_, catalogue_);
  }
  ~Served() {
    dispatcher_.reset();
    store_.reset();
    for (const char* suffix : {"", "-wal", "-shm"}) unlink((path_ + suffix).c_str());
  }

  std::string Text(const std::string& member, const std::string& payload) {
    std::vector<service::Event> events;
    return dispatcher_->Answer(member, payload, events);
  }
  Json::Value Ask(const std::string& member, const Json::Value& request) {
    Json::Value answer;
    Json::Reader().parse(Text(member, Json::FastWriter().write(request)), answer);
    return answer;
  }
  const service::Catalogue& Catalogue() const { return catalogue_; }

 private:
  std::string path_;
  service::Catalogue catalogue_;
  std::unique_ptr<service::Store> store_;
  std::unique_ptr<service::Dispatcher> dispatcher_;
};

}  // namespace zunde::testing

#endif
