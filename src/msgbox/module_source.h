// The Visual Basic source of modCustomMsgBox as users get it into their projects.
#pragma once

#include <string_view>

namespace brimwork {

/// Lines joined by CR LF, ASCII only, without the attributes that a file would open with.
extern const std::string_view kModCustomMsgBoxSource;

}  // namespace brimwork
