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

struct StoreOptions {
  bool readOnly = false;  // never write: every change is refused
  int maxPages = 0;       // the file may grow to this many pages; 0 = no cap
};

class Store {
 public:
  // Opens (or makes) `path`, in WAL mode with synchronous=FULL, and brings
  // its schema up to date. A store that cannot be opened for writing is
  // opened read-only instead, if it is already up to date: reads work and
  // every change fails. Throws StoreError.
  explicit Store(const std::string& path, const StoreOptions& options = {});
  ~Store();
  Store(const Store&) = delete;
  Store& operator=(const Store&) = delete;

  // The document under `key`; null when there is none.
  Json::Value Get(const std::string& key) const;
  void Put(const std::string& key, const Json::Value& value);
  void Erase(const std::string& key);
  // Erases every document and log whose key starts with `prefix` ("" erases all).
  void EraseAll(const std::string& prefix = "");
  // Erases the least recently written documents under `prefix` beyond the
  // newest `limit`.
  void Trim(const std::string& prefix, int limit);

  // Adds `value` to the end of the log `name`, whose oldest entries go
  // beyond the newest `limit`.
  void Append(const std::string& name, const Json::Value& value, int limit);

  // Why the store is read-only; "" when it can be written.
  const std::string& ReadOnlyReason() const { return readOnlyReason_; }

  void Begin();
  void Commit();
  void Rollback();

  // The schema version this build writes.
  static int SchemaVersion();

 private:
  void Open(const std::string& path, int flags);
  void OpenWritable(const std::string& path, const StoreOptions& options);
  void OpenReadOnly(const std::string& path);
  void Close();
  int Version() const;
  void Exec(const std::string& sql) const;
  void Migrate();

  sqlite3* db_ = nullptr;
  std::string readOnlyReason_;
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
