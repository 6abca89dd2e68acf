// Rich text between a rich edit control and the files of every other program.
#pragma once

#include <string>
#include <string_view>

namespace brimwork::windows {

/// Stands in a control for each character that the control itself would take for something else:
/// the end of the text, a line break of its own, a place of an embedded object, a tab that has no
/// format.
inline constexpr wchar_t kStandIn = 0xF8FF;

/// The character that a control cannot hold as it is; kStandIn is one, too.
bool NeedsStandIn(wchar_t unit);

/// units with stand-ins in place of such characters.
std::wstring WithStandIns(std::wstring_view units);

/// Rich text as programs exchange it, in ASCII alone, of what a control gives in UTF-8. units: the
/// text of it; each stand-in becomes the character that it stands for, and every line of the text
/// is a paragraph, the last one, too.
std::string PortableRichText(std::string_view streamed, std::wstring_view units);

/// Whether text is a whole document of rich text.
bool IsRichText(std::string_view text);

}  // namespace brimwork::windows
