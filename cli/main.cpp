// zunde-cli: the service's API from the command line, for people and scripts.
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "command_runner.h"
#include "direct_commands.h"
#include "session.h"

namespace {

const std::vector<zcli::Family>& Families() {
  static const std::vector<zcli::Family> families = {zcli::EnvironmentFamily(), zcli::CatalogueFamily(),
                                                     zcli::MatchFamily(),       zcli::SetTopBoxFamily(),
                                                     zcli::BroadcastFamily(),   zcli::VirtualFamily()};
  return families;
}

}  // namespace

int main(int argc, char** argv) {
  // The library's own log lines would only repeat what zunde-cli says.
  setenv("ZUNDE_LOG", "off", 0);

  CLI::App app("zunde-cli: call the live-content service (zunde-service) from the command line");
  app.footer(
      "Examples:\n  zunde-cli env set US en\n  zunde-cli --json stb channels 0 0\n  zunde-cli guide --hours 2\n"
      "  zunde-cli monitor --timeout 1\n"
      "Exit status: 0 success, 1 the call failed or the answer is no, 2 usage error, 3 service not reachable.");
  app.set_version_flag("--version", ZUNDE_CLI_VERSION);
  app.fallthrough();
  app.require_subcommand(1);
  app.add_flag("--json", zcli::GlobalOptions().json, "print one JSON document per result");
  app.add_option("--repeat", zcli::GlobalOptions().repeat,
                 "make the call N times; report min, median and 99th percentile time")
      ->check(CLI::Range(1, 1000000));

  zcli::Action action;
  for (const zcli::Family& family : Families()) zcli::AddFamily(app, family, action);
  zcli::AddCall(app, action);
  zcli::AddReset(app, action);
  zcli::AddMonitor(app, action);
  zcli::AddGuide(app, action);
  zcli::AddExportXmltv(app, action);
  zcli::AddEmit(app, action);

  // Every "Example: " line of every help text, one a line, for the test that runs them all.
  bool examples = false;
  app.add_flag("--examples", examples)->group("");
  try {
    app.parse(argc, argv);
    if (examples) return zcli::PrintExamples(app);
  } catch (const CLI::ParseError& error) {
    if (examples) return zcli::PrintExamples(app);
    if (error.get_exit_code() == 0) return app.exit(error);
    std::fprintf(stderr, "zunde-cli: %s (see zunde-cli --help)\n", error.what());
    return zcli::kUsage;
  }
  if (!action) return zcli::kUsage;
  // A reply the library could not read throws through the API to its caller.
  try {
    return action();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "zunde-cli: the service's reply could not be read: %s\n", error.what());
    return zcli::kRefused;
  }
}
