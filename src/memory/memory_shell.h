// What opens outside of the add-in as plain data: what was asked for is recorded.
#pragma once

#include <string>
#include <vector>

#include "environment/shell.h"

namespace brimwork {

struct ShellRequest {
  std::string verb;
  std::string file;
  std::string parameters;
  std::string directory;

  bool operator==(const ShellRequest&) const = default;
};

class MemoryShell : public Shell {
 public:
  void ShellExecute(std::string_view verb, std::string_view file, std::string_view parameters,
                    std::string_view directory) override {
    requests.push_back(
        {std::string(verb), std::string(file), std::string(parameters), std::string(directory)});
  }

  std::vector<ShellRequest> requests;
};

struct HelpRequest {
  std::string path;
  std::uint32_t command = 0;
  std::uint32_t data = 0;

  bool operator==(const HelpRequest&) const = default;
};

class MemoryHelpViewer : public HelpViewer {
 public:
  void HtmlHelp(std::string_view path, std::uint32_t command, std::uint32_t data) override {
    requests.push_back({std::string(path), command, data});
  }

  std::vector<HelpRequest> requests;
};

}  // namespace brimwork
