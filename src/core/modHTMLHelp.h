// The add-in's compiled help file. Run-time errors are passed over: the help system tells the user
// itself what it cannot show.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "environment/environment.h"

namespace brimwork {

/// Lies beside the add-in.
inline constexpr std::string_view kHelpFileName = "Brimwork.chm";

/// folder, a backslash where it does not end with one, and fileName.
std::string HelpFilePath(std::string_view folder, std::string_view fileName);

void ShowHelpContents(HelpViewer& viewer, std::string_view folder, std::string_view fileName);
void ShowHelpIndex(HelpViewer& viewer, std::string_view folder, std::string_view fileName);
void ShowHelpTopic(HelpViewer& viewer, std::string_view folder, std::string_view fileName,
                   std::uint32_t contextNumber);

/// Closes every help window that the add-in has opened; there may be none.
void CloseAllHelp(HelpViewer& viewer, std::string_view folder, std::string_view fileName);

}  // namespace brimwork
