#include "command_runner.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdint>
#include <memory>
#include <set>

#include "arg_checks.h"
#include "output.h"
#include "session.h"

namespace zcli {
namespace {

// A check that may rewrite the text; CLI11 puts the argument's name before its message.
CLI::Validator Check(std::function<std::string(std::string&)> check) { return CLI::Validator(check, ""); }

CLI::Validator KindCheck(const Arg& arg) {
  switch (arg.kind) {
    case Kind::Int:
      return Check([](std::string& t) { return CheckWhole(t, INT32_MIN, INT32_MAX, "int"); });
    case Kind::Unsigned:
      return Check([](std::string& t) { return CheckWhole(t, 0, UINT32_MAX, "unsigned int"); });
    case Kind::Unsigned64:
      return Check([](std::string& t) { return CheckWhole(t, 0, UINT64_MAX, "unsigned 64-bit"); });
    case Kind::Time:
      return Check(CheckTime);
    case Kind::Bool:
      return Check([](std::string& t) {
        static const std::set<std::string> words = {"true", "false", "1", "0", "on", "off", "yes", "no"};
        return words.count(t) ? "" : "'" + t + "' is not one of true, false, 1, 0, on, off, yes, no";
      });
    case Kind::Json:
      return Check([shape = arg.shape](std::string& t) { return CheckJson(t, shape); });
    case Kind::Text:
      break;
  }
  return CLI::Validator();
}

int Run(const Family& family, const Command& command, const std::vector<std::string>& values) {
  const Args args(values);
  Json::Value out;
  const bool ok = Timed([&] {
    out = Json::Value(Json::objectValue);
    return command.call(args, out);
  });
  if (!ok && command.falseIsNo && AnswerWasNo()) {
    if (GlobalOptions().json) PrintResult(out, command.columns);
    else std::printf("no\n");
    return kRefused;
  }
  if (!ok) return ReportFailure(std::string(family.name) + " " + command.name);
  PrintResult(out, command.columns);
  return kOk;
}

}  // namespace

void AddFamily(CLI::App& app, const Family& family, Action& action) {
  CLI::App* group = app.add_subcommand(family.name, family.help);
  group->require_subcommand(1);
  for (const Command& command : family.commands) {
    CLI::App* sub = group->add_subcommand(command.name, command.help);
    if (!command.example.empty()) sub->footer("Example: " + command.example);
    auto values = std::make_shared<std::vector<std::string>>(command.args.size());
    for (size_t n = 0; n < command.args.size(); ++n) {
      const Arg& arg = command.args[n];
      sub->add_option(arg.name, (*values)[n], arg.help)->required()->transform(KindCheck(arg));
    }
    sub->callback([&family, &command, values, &action] {
      action = [&family, &command, values] { return Run(family, command, *values); };
    });
  }
}

int PrintExamples(const CLI::App& app) {
  std::istringstream footer(app.get_footer());
  for (std::string line; std::getline(footer, line);) {
    line.erase(0, line.find_first_not_of(' '));
    const bool example = line.rfind("Example: ", 0) == 0;
    if (example) line.erase(0, 9);
    if (example || line.rfind("zunde-cli ", 0) == 0) std::printf("%s\n", line.c_str());
  }
  for (const CLI::App* sub : app.get_subcommands([](const CLI::App*) { return true; })) PrintExamples(*sub);
  return kOk;
}

bool Timed(const std::function<bool()>& call) {
  const int repeat = std::max(1, GlobalOptions().repeat);
  std::vector<double> millis;
  bool ok = true;
  for (int n = 0; n < repeat && ok; ++n) {
    const auto start = std::chrono::steady_clock::now();
    ok = call();
    millis.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
  }
  if (repeat > 1 && ok) {
    std::sort(millis.begin(), millis.end());
    const auto at = [&](double share) { return millis[std::min(millis.size() - 1, size_t(share * millis.size()))]; };
    std::fprintf(stderr, "%zu calls: min %.3f ms, median %.3f ms, p99 %.3f ms\n", millis.size(), millis.front(),
                 at(0.5), at(0.99));
  }
  return ok;
}

}  // namespace zcli
