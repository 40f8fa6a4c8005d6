// The declarative form of zunde-cli's subcommands: each family of the API is
// one table of commands, each command one row saying what the user types,
// what it calls and how its result is shown. Nothing else is written per
// method; registering, checking the arguments, timing and printing are
// shared (command_runner.cpp).
#ifndef ZUNDE_CLI_COMMAND_TABLE_H
#define ZUNDE_CLI_COMMAND_TABLE_H

#include <json/json.h>

#include <functional>
#include <string>
#include <vector>

namespace zcli {

// What an argument holds; decides how it is checked before any call is made.
// Numbers are checked against the C++ type they become: Int a 32-bit int,
// Unsigned a 32-bit unsigned, Unsigned64 a 64-bit unsigned (service ids),
// Time 32-bit seconds since the epoch, also given as `now`, `now+90m`, `HH:MM`.
enum class Kind { Int, Unsigned, Unsigned64, Time, Text, Bool, Json };

struct Arg {
  std::string name;  // as shown in the usage line, e.g. "ACTIVITY"
  Kind kind;
  std::string help;
  // For Json: the JSON form of the record it becomes; only its keys, with
  // values of their JSON types, are accepted. Null: any object.
  Json::Value shape = Json::Value();
};

// The command line's arguments, read by position; already checked against
// their kinds, so reading cannot fail.
class Args {
 public:
  explicit Args(const std::vector<std::string>& values) : values_(values) {}
  int i(size_t n) const;
  unsigned long long u(size_t n) const;
  bool b(size_t n) const;
  // A copy: several API methods take their string arguments by reference.
  std::string s(size_t n) const { return values_.at(n); }
  // Comma-separated text as a list; "" is the empty list.
  std::vector<std::string> list(size_t n) const;
  Json::Value json(size_t n) const;
  // `base` with the members of argument `n` laid over it: what is not given stays.
  Json::Value over(size_t n, Json::Value base) const;
  // A record read from its JSON form.
  template <typename Record>
  Record rec(size_t n) const {
    Record record;
    Json::Value value = json(n);
    Record::FromJson(value, record);
    return record;
  }

 private:
  const std::vector<std::string>& values_;
};

// A record in its own JSON form.
template <typename Record>
Json::Value J(Record& record) {
  Json::Value value(Json::objectValue);
  Record::ToJson(record, value);
  return value;
}

struct Command {
  std::string name;
  std::string help;
  std::string example;  // a full command line that succeeds on the default data; empty: none can
  std::vector<Arg> args;
  // Makes the call; fills `out` with the result's JSON form. The API's result.
  std::function<bool(const Args& args, Json::Value& out)> call;
  // The columns of a listed result, in order; empty: every key of its rows.
  std::vector<std::string> columns = {};
  // False is an answer ("no", status 1), not a failure.
  bool falseIsNo = false;
};

// The row with false as the answer "no".
inline Command YesNo(Command command) {
  command.falseIsNo = true;
  return command;
}

// The row of a method the library answers without asking the service.
inline Command Local(Command command) {
  command.help += " (answered by the library itself; the service is not asked)";
  return command;
}

// The JSON form of a default `Record`: the shape a JSON argument of it must keep to.
template <typename Record>
Json::Value ShapeOf() {
  Record record;
  Json::Value value(Json::objectValue);
  Record::ToJson(record, value);
  return value;
}

struct Family {
  const char* name;
  const char* help;
  std::vector<Command> commands;
};

Family EnvironmentFamily();
Family CatalogueFamily();
Family MatchFamily();
Family SetTopBoxFamily();
Family BroadcastFamily();
Family VirtualFamily();

}  // namespace zcli

#endif
