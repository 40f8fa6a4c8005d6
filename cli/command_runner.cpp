#include "command_runner.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>

#include "output.h"
#include "session.h"

namespace zcli {
namespace {

CLI::Validator KindCheck(Kind kind) {
  switch (kind) {
    case Kind::Int:
      return CLI::Validator(
          [](std::string& text) -> std::string {
            size_t end = 0;
            try {
              std::stoi(text, &end);
            } catch (...) {
            }
            return end != 0 && end == text.size() ? "" : "'" + text + "' is not a whole number";
          },
          "INT");
    case Kind::Unsigned:
      return CLI::Validator(
          [](std::string& text) -> std::string {
            const bool digits = !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
            return digits ? "" : "'" + text + "' is not an unsigned number";
          },
          "UINT");
    case Kind::Bool:
      return CLI::IsMember({"true", "false", "1", "0", "on", "off", "yes", "no"});
    case Kind::Json:
      return CLI::Validator(
          [](std::string& text) -> std::string {
            Json::Value value;
            std::string errors;
            std::istringstream in(text);
            return Json::parseFromStream(Json::CharReaderBuilder(), in, &value, &errors) && value.isObject()
                       ? ""
                       : "'" + text + "' is not a JSON object";
          },
          "JSON");
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
    sub->footer("Example: " + command.example);
    auto values = std::make_shared<std::vector<std::string>>(command.args.size());
    for (size_t n = 0; n < command.args.size(); ++n) {
      const Arg& arg = command.args[n];
      sub->add_option(arg.name, (*values)[n], arg.help)->required()->check(KindCheck(arg.kind));
    }
    sub->callback([&family, &command, values, &action] {
      action = [&family, &command, values] { return Run(family, command, *values); };
    });
  }
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
