#include "core/modHTMLHelp.h"

#include "environment/resume_next.h"

namespace brimwork {
namespace {

void Ask(HelpViewer& viewer, std::string_view folder, std::string_view fileName,
         std::uint32_t command, std::uint32_t data = 0) {
  ResumeNext([&] { viewer.HtmlHelp(HelpFilePath(folder, fileName), command, data); });
}

}  // namespace

std::string HelpFilePath(std::string_view folder, std::string_view fileName) {
  std::string path(folder);
  if (!folder.ends_with('\\')) path += '\\';
  return path.append(fileName);
}

void ShowHelpContents(HelpViewer& viewer, std::string_view folder, std::string_view fileName) {
  Ask(viewer, folder, fileName, help_command::kDisplayToc);
}

void ShowHelpIndex(HelpViewer& viewer, std::string_view folder, std::string_view fileName) {
  Ask(viewer, folder, fileName, help_command::kDisplayIndex);
}

void ShowHelpTopic(HelpViewer& viewer, std::string_view folder, std::string_view fileName,
                   std::uint32_t contextNumber) {
  Ask(viewer, folder, fileName, help_command::kHelpContext, contextNumber);
}

void CloseAllHelp(HelpViewer& viewer, std::string_view folder, std::string_view fileName) {
  Ask(viewer, folder, fileName, help_command::kCloseAll);
}

}  // namespace brimwork
