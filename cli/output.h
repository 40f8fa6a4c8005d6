// Printing a result: compact JSON (one document per line) for scripts, or
// aligned text for people.
#ifndef ZUNDE_CLI_OUTPUT_H
#define ZUNDE_CLI_OUTPUT_H

#include <json/json.h>

#include <string>
#include <vector>

namespace zcli {

// One line of compact JSON.
std::string CompactJson(const Json::Value& value);

// `result` as text: its scalar members as "key  value" lines, each member
// holding a list of objects as a table (`columns` chosen, else every key of
// the rows), anything deeper as compact JSON in its cell.
void PrintReadable(const Json::Value& result, const std::vector<std::string>& columns);

// As the global options ask.
void PrintResult(const Json::Value& result, const std::vector<std::string>& columns);

}  // namespace zcli

#endif
