#include "workbench/model/CommandLine.h"

#include <functional>
#include <stdexcept>

#include "workbench/model/ModelStrings.h"

namespace kestrel::workbench {

namespace {

struct TOption {
  const char* Name;
  bool TakesValue;
  void (*Apply)(TCommandLine& line, const std::string& value);
};

constexpr TOption kOptions[] = {
    {"--help", false, [](TCommandLine& line, const std::string&) { line.Help = true; }},
    {"-h", false, [](TCommandLine& line, const std::string&) { line.Help = true; }},
    {"--version", false, [](TCommandLine& line, const std::string&) { line.Version = true; }},
    {"--macro-help", false, [](TCommandLine& line, const std::string&) { line.MacroHelp = true; }},
    {"--package", true, [](TCommandLine& line, const std::string& value) { line.Packages.push_back(value); }},
    {"--play", true, [](TCommandLine& line, const std::string& value) { line.Macro = value; }},
    {"--screenshots", true, [](TCommandLine& line, const std::string& value) { line.Screenshots = value; }},
};

const TOption& FindOption(const std::string& name) {
  for (const auto& option : kOptions)
    if (name == option.Name) return option;
  throw std::runtime_error(Format(sUnknownOption, {name}));
}

void TakeFile(TCommandLine& line, const std::string& file) {
  if (!line.File.empty()) throw std::runtime_error(Format(sTooManyFiles, {file}));
  line.File = file;
}

}  // namespace

TCommandLine TCommandLine::Parse(const std::vector<std::string>& arguments) {
  TCommandLine line;
  bool optionsOver = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (optionsOver || !argument.starts_with('-')) {
      TakeFile(line, argument);
      continue;
    }
    if (argument == "--") {
      optionsOver = true;
      continue;
    }
    const std::size_t equals = argument.find('=');
    const TOption& option = FindOption(argument.substr(0, equals));
    std::string value = equals == std::string::npos ? "" : argument.substr(equals + 1);
    if (option.TakesValue && equals == std::string::npos) {
      if (i + 1 == arguments.size()) throw std::runtime_error(Format(sOptionNeedsValue, {argument}));
      value = arguments[++i];
    }
    if (!option.TakesValue && equals != std::string::npos)
      throw std::runtime_error(Format(sOptionTakesNoValue, {option.Name}));
    option.Apply(line, value);
  }
  return line;
}

}  // namespace kestrel::workbench
