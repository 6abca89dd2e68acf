// What opens outside of the add-in: documents and addresses, and compiled help. Every operation may
// raise RunTimeError.
#pragma once

#include <cstdint>
#include <string_view>

namespace brimwork {

class Shell {
 public:
  virtual ~Shell() = default;

  /// Does verb ("Open") with a file or an address, with the program that the user has for it.
  virtual void ShellExecute(std::string_view verb, std::string_view file,
                            std::string_view parameters, std::string_view directory) = 0;
};

namespace help_command {
inline constexpr std::uint32_t kDisplayToc = 1;    // HH_DISPLAY_TOC: the contents
inline constexpr std::uint32_t kDisplayIndex = 2;  // HH_DISPLAY_INDEX
inline constexpr std::uint32_t kHelpContext = 15;  // HH_HELP_CONTEXT: data is the topic's number
inline constexpr std::uint32_t kCloseAll = 18;     // HH_CLOSE_ALL
}  // namespace help_command

class HelpViewer {
 public:
  virtual ~HelpViewer() = default;

  /// Tells the user itself when there is no such help file.
  virtual void HtmlHelp(std::string_view path, std::uint32_t command, std::uint32_t data) = 0;
};

}  // namespace brimwork
