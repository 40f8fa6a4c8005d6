// The service's durable state: JSON documents under keys, in one SQLite
// file. Every write happens inside a transaction that the caller commits
// before it answers, so an acknowledged change outlives a crash.
#ifndef ZUNDE_SERVICE_STORE_H
#define ZUNDE_SERVICE_STORE_H

#include <json/json.h>
#include <sqlite3.h>

#include <stdexcept>
#include <string>

namespace zunde::service {

struct StoreError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

class Store {
 public:
  // Opens (or makes) `path`, in WAL mode with synchronous=FULL, and brings
  // its schema up to date. Throws StoreError.
  explicit Store(const std::string& path);
  ~Store();
  Store(const Store&) = delete;
  Store& operator=(const Store&) = delete;

  // The document under `key`; null when there is none.
  Json::Value Get(const std::string& key) const;
  void Put(const std::string& key, const Json::Value& value);
  void Erase(const std::string& key);
  // Erases every document whose key starts with `prefix` ("" erases all).
  void EraseAll(const std::string& prefix = "");

  void Begin();
  void Commit();
  void Rollback();

  // The schema version this build writes.
  static int SchemaVersion();

 private:
  void Exec(const std::string& sql) const;
  void Migrate();

  sqlite3* db_ = nullptr;
};

// A transaction that rolls back unless committed.
class Transaction {
 public:
  explicit Transaction(Store& store) : store_(store) { store_.Begin(); }
  ~Transaction() {
    if (!done_) store_.Rollback();
  }
  void Commit() {
    store_.Commit();
    done_ = true;
  }

 private:
  Store& store_;
  bool done_ = false;
};

}  // namespace zunde::service

#endif
