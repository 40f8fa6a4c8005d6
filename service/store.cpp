#include "store.h"

#include <iterator>
#include <memory>

namespace zunde::service {
namespace {

// Forward migrations: entry i brings a store from version i to i + 1.
const char* const kMigrations[] = {
    // 1: every piece of state is one JSON document under a key.
    "CREATE TABLE document (key TEXT PRIMARY KEY NOT NULL, value TEXT NOT NULL)",
};

using Statement = std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)>;

Statement Prepare(sqlite3* db, const char* sql) {
  sqlite3_stmt* stmt = nullptr;
  if (sqlite3_prepare_v2(db, sql, -1, &stmt, nullptr) != SQLITE_OK) throw StoreError(sqlite3_errmsg(db));
  return Statement(stmt, sqlite3_finalize);
}

void Bind(sqlite3_stmt* stmt, int index, const std::string& text) {
  sqlite3_bind_text(stmt, index, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

void StepToDone(sqlite3* db, sqlite3_stmt* stmt) {
  if (sqlite3_step(stmt) != SQLITE_DONE) throw StoreError(sqlite3_errmsg(db));
}

std::string Compact(const Json::Value& value) {
  Json::StreamWriterBuilder writer;
  writer["indentation"] = "";
  return Json::writeString(writer, value);
}

}  // namespace

Store::Store(const std::string& path) {
  if (sqlite3_open(path.c_str(), &db_) != SQLITE_OK) {
    const std::string message = db_ ? sqlite3_errmsg(db_) : "out of memory";
    sqlite3_close(db_);
    db_ = nullptr;
    throw StoreError(path + ": " + message);
  }
  sqlite3_busy_timeout(db_, 5000);
  try {
    Exec("PRAGMA journal_mode=WAL");
    Exec("PRAGMA synchronous=FULL");
    Migrate();
  } catch (...) {
    sqlite3_close(db_);
    throw;
  }
}

Store::~Store() { sqlite3_close(db_); }

int Store::SchemaVersion() { return static_cast<int>(std::size(kMigrations)); }

void Store::Exec(const std::string& sql) const {
  char* error = nullptr;
  if (sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, &error) != SQLITE_OK) {
    const std::string message = error ? error : "unknown error";
    sqlite3_free(error);
    throw StoreError(message);
  }
}

void Store::Migrate() {
  Statement query = Prepare(db_, "PRAGMA user_version");
  sqlite3_step(query.get());
  const int version = sqlite3_column_int(query.get(), 0);
  query.reset();
  if (version > SchemaVersion()) {
    throw StoreError("the store was written by a newer zunde-service (schema " + std::to_string(version) + ")");
  }
  for (int next = version; next < SchemaVersion(); ++next) {
    Transaction step(*this);
    Exec(kMigrations[next]);
    Exec("PRAGMA user_version=" + std::to_string(next + 1));
    step.Commit();
  }
}

Json::Value Store::Get(const std::string& key) const {
  Statement query = Prepare(db_, "SELECT value FROM document WHERE key = ?");
  Bind(query.get(), 1, key);
  Json::Value value;
  if (sqlite3_step(query.get()) == SQLITE_ROW) {
    const char* text = reinterpret_cast<const char*>(sqlite3_column_text(query.get(), 0));
    Json::Reader().parse(text ? text : "null", value);
  }
  return value;
}

void Store::Put(const std::string& key, const Json::Value& value) {
  Statement put = Prepare(db_, "INSERT OR REPLACE INTO document (key, value) VALUES (?, ?)");
  Bind(put.get(), 1, key);
  Bind(put.get(), 2, Compact(value));
  StepToDone(db_, put.get());
}

void Store::Erase(const std::string& key) {
  Statement erase = Prepare(db_, "DELETE FROM document WHERE key = ?");
  Bind(erase.get(), 1, key);
  StepToDone(db_, erase.get());
}

void Store::EraseAll(const std::string& prefix) {
  Statement erase = Prepare(db_, "DELETE FROM document WHERE substr(key, 1, length(?1)) = ?1");
  Bind(erase.get(), 1, prefix);
  StepToDone(db_, erase.get());
}

void Store::Begin() { Exec("BEGIN IMMEDIATE"); }
void Store::Commit() { Exec("COMMIT"); }
// Runs from destructors: a failed rollback leaves nothing more to undo.
void Store::Rollback() { sqlite3_exec(db_, "ROLLBACK", nullptr, nullptr, nullptr); }

}  // namespace zunde::service
