// The proxy harness: every proxy method is one row of a table, run on the
// real bus against the scriptable test service.
//
// A family's test file holds only tables and their instantiation:
//
//   const ProxyCase kCases[] = {Row("GetHeadEndID", ..., Observe<Proxy>(call, std::string("-")))};
//   INSTANTIATE_TEST_SUITE_P(Family, ProxyMethod, ::testing::ValuesIn(kCases), CaseName);
//
// The generic tests run every row through the happy path and through the
// failure paths that all methods share, so no method writes them again.
#ifndef ZUNDE_TESTS_PROXY_HARNESS_H
#define ZUNDE_TESTS_PROXY_HARNESS_H

#include <gtest/gtest.h>

#include <functional>
#include <list>
#include <map>
#include <ostream>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace zunde::testing {

// What one call did: its result, and its outputs as text before and after.
struct Observed {
  bool result = false;
  std::string before;
  std::string after;
};

// A log line: log id, priority, and the text after " > ".
struct ExpectedLine {
  int logId = 0;
  int priority = 0;
  std::string text;
};

// One typed method. Besides the happy path, each row is run with the
// service absent, with a reply that is not JSON, and with "ret" false.
struct ProxyCase {
  std::string name;     // unique test name
  std::string member;   // D-Bus member
  std::string request;  // exact request bytes; "" is the empty buffer
  std::string reply;    // scripted reply text
  bool result = false;
  std::string outputs;  // the outputs' text after the call
  std::function<Observed()> call;
  ExpectedLine entry;  // an empty text checks no entry line
  ExpectedLine sendFailed;
  ExpectedLine parseFailed;
  bool readsReply = true;  // false: true once the service answered, whatever it said
};

// A pass-through method: request text in as it stands, reply text out raw.
struct PassThroughCase {
  std::string name;
  std::string member;
  std::function<bool(const std::string& request, std::string& reply)> call;
  bool forwardsRequest = true;  // false: sends the empty buffer whatever the request
  bool returnsRet = false;      // true: the result is the reply's "ret"
  ExpectedLine entry;
  ExpectedLine sendFailed;
};

// A call its checks refuse: false, nothing on the bus, outputs untouched.
struct RefusedCase {
  std::string name;
  std::function<Observed()> call;
  std::string entryLine;  // text after " > " of the one line written; "" for none
};

template <typename Case>
std::string CaseName(const ::testing::TestParamInfo<Case>& info) {
  return info.param.name;
}
// Rows print as their names in test listings.
inline void PrintTo(const ProxyCase& row, std::ostream* os) { *os << row.name; }
inline void PrintTo(const PassThroughCase& row, std::ostream* os) { *os << row.name; }
inline void PrintTo(const RefusedCase& row, std::ostream* os) { *os << row.name; }

// --- outputs as text ---
// Each test file renders the records it uses in its own way, so these
// templates are instantiated apart in each file (an unnamed namespace)
// rather than shared by the linker.
namespace {


inline std::string OutputText(const std::string& value) { return value; }
inline std::string OutputText(const char* value) { return value; }
inline std::string OutputText(bool value) { return value ? "true" : "false"; }
template <typename T, typename = std::enable_if_t<std::is_arithmetic_v<T> || std::is_enum_v<T>>>
std::string OutputText(T value) {
  if constexpr (std::is_enum_v<T>) {
    return std::to_string(static_cast<long long>(value));
  } else {
    return std::to_string(value);
  }
}
// Containers render their items, nested containers included.
template <typename A, typename B>
std::string OutputText(const std::pair<A, B>& pair);
template <typename T>
std::string OutputText(const std::vector<T>& items);
template <typename T>
std::string OutputText(const std::list<T>& items);
template <typename K, typename V>
std::string OutputText(const std::map<K, V>& items);

template <typename Range>
std::string JoinedText(const Range& range, const char* open, const char* close) {
  std::string text;
  for (const auto& item : range) text += (text.empty() ? "" : ", ") + OutputText(item);
  return open + text + close;
}
template <typename A, typename B>
std::string OutputText(const std::pair<A, B>& pair) {
  return OutputText(pair.first) + ": " + OutputText(pair.second);
}
template <typename T>
std::string OutputText(const std::vector<T>& items) {
  return JoinedText(items, "[", "]");
}
template <typename T>
std::string OutputText(const std::list<T>& items) {
  return JoinedText(items, "[", "]");
}
template <typename K, typename V>
std::string OutputText(const std::map<K, V>& items) {
  return JoinedText(items, "{", "}");
}

template <typename... Outs>
std::string OutputsText(const std::tuple<Outs...>& outs) {
  std::string text;
  std::apply([&text](const auto&... out) { ((text += (text.empty() ? "" : " | ") + OutputText(out)), ...); }, outs);
  return text;
}

// A fresh Proxy, outputs starting at `initial...`: f(proxy, outputs...) with
// the outputs rendered before and after.
template <typename Proxy, typename F, typename... Outs>
std::function<Observed()> Observe(F f, Outs... initial) {
  return [f, initial...]() {
    Proxy proxy;
    std::tuple<Outs...> outs(initial...);
    Observed observed;
    observed.before = OutputsText(outs);
    observed.result = std::apply([&](auto&... out) { return f(proxy, out...); }, outs);
    observed.after = OutputsText(outs);
    return observed;
  };
}

}  // namespace

// The service runs for the whole suite; each test starts with no calls
// received and no lines written.
void StartService();
void StopService();
void ForgetCallsAndLines();
template <typename Case>
class OnTheBus : public ::testing::TestWithParam<Case> {
 protected:
  static void SetUpTestSuite() { StartService(); }
  static void TearDownTestSuite() { StopService(); }
  void SetUp() override { ForgetCallsAndLines(); }
};

// The generic tests, which a family instantiates with its tables.
using ProxyMethod = OnTheBus<ProxyCase>;
using ProxyPassThrough = OnTheBus<PassThroughCase>;
using ProxyRefused = OnTheBus<RefusedCase>;

// Whether a line ending in " > " + expected.text was written, with its log
// id and priority.
::testing::AssertionResult Logged(const ExpectedLine& expected);

}  // namespace zunde::testing

#endif
