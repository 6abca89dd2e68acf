#include "export/modSaveAs.h"

#include <iterator>

namespace brimwork {
namespace {

struct Filter {
  std::string_view extension;
  std::string_view description;
  std::string_view pattern;
};

constexpr Filter kFilters[] = {
    {"txt", "Text File (*.txt)", "*.txt"},
    {"rtf", "Rich Text File (*.rtf)", "*.rtf"},
    {"htm", "Web Page (*.htm)", "*.htm"},
    {"*.*", "All Files (*.*)", "*.*"},
};

constexpr std::uint32_t kRecordSize = 76;
constexpr std::uint32_t kBufferSize = 255;

constexpr std::uint32_t kOverwritePrompt = 0x2;
constexpr std::uint32_t kHideReadOnly = 0x4;
constexpr std::uint32_t kExplorer = 0x80000;

std::string FilterOf(std::string_view extension) {
  for (const Filter& filter : kFilters) {
    if (filter.extension != extension) continue;
    return std::string(filter.description).append(1, '\0').append(filter.pattern);
  }
  return {};
}

}  // namespace

std::string ShowSaveDialog(Environment& environment, std::string_view initialFolder,
                           std::string_view title, WindowHandle owner,
                           std::string_view defaultExtension) {
  SaveFileRequest request;
  request.structSize = kRecordSize;
  request.owner = owner;
  request.instance = environment.app.Instance();
  request.filter = FilterOf(defaultExtension);
  request.file.assign(kBufferSize, '\0');
  request.fileSize = kBufferSize;
  request.initialFolder = initialFolder;
  request.title = title;
  request.flags = kExplorer | kHideReadOnly | kOverwritePrompt;
  request.defaultExtension = defaultExtension;
  if (!environment.dialogs.GetSaveFileName(request)) return {};
  return request.file.substr(0, request.file.find('\0'));
}

std::string AskWhereToSave(Environment& environment, WindowHandle owner,
                           std::string_view defaultExtension) {
  return ShowSaveDialog(environment, environment.app.Path(), "Save Exported Code", owner,
                        defaultExtension);
}

std::string FileNameOf(std::string_view path) {
  const auto separator = path.rfind('\\');
  return std::string(separator == std::string_view::npos ? path : path.substr(separator + 1));
}

}  // namespace brimwork
