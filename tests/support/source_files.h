// Source files as bytes, and as the module that they hold.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "memory/source_file.h"

namespace brimwork {

inline constexpr const char* kWindows = "WINDOWS-1252";

inline SourceFile Parsed(std::string bytes, const std::string& encoding = kWindows) {
  return SourceFile::Parse(std::move(bytes), "dir/modMain.bas", encoding);
}

inline std::string Composed(const SourceFile& file, const ModuleText& text) {
  std::string bytes;
  file.Compose(text, [&](std::string_view piece) { bytes += piece; });
  return bytes;
}

/// As UTF-16 with the lower byte first.
inline std::string Wide(std::string_view ascii) {
  std::string bytes;
  for (const char c : ascii) bytes += {c, '\0'};
  return bytes;
}

inline std::string BigEndian(std::string_view ascii) {
  std::string bytes;
  for (const char c : ascii) bytes += {'\0', c};
  return bytes;
}

/// A form file with all that the editor hides.
inline const std::string kForm =
    "VERSION 5.00\r\n"
    "Object = \"{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0\"; \"MSCOMCTL.OCX\"\r\n"
    "Begin VB.Form frmMain \r\n"
    "   Caption         =   \"Gr\xF6\xDF"
    "e\"\r\n"
    "   Begin VB.Frame fraOne \r\n"
    "      BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851} \r\n"
    "         Name            =   \"MS Sans Serif\"\r\n"
    "      EndProperty\r\n"
    "      Begin VB.TextBox txtOne \r\n"
    "         Text            =   \"End\"\r\n"
    "      End\r\n"
    "   End\r\n"
    "End\r\n"
    "Attribute VB_Name = \"frmMain\"\r\n"
    "Attribute VB_GlobalNameSpace = False\r\n"
    "Attribute VB_PredeclaredId = True\r\n"
    "Option Explicit\r\n"
    "Private WithEvents mTimer As Timer\r\n"
    "Attribute mTimer.VB_VarHelpID = -1\r\n"
    "\r\n"
    "Public Property Get Size() As Long\r\n"
    "Attribute Size.VB_Description = \"Gr\xF6\xDF"
    "e\"\r\n"
    "Attribute Size.VB_UserMemId = 0\r\n"
    "    Size = 1\r\n"
    "End Property\r\n";

}  // namespace brimwork
