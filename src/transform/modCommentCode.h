// Comment lines: the frame around a procedure, the module's header, the time stamp.
#pragma once

#include <string>
#include <string_view>

#include "transform/context.h"

namespace brimwork {

namespace header_kind {
inline constexpr std::string_view kStandard = "StandardHeader";
inline constexpr std::string_view kAdapted = "AdaptedHeader";
}  // namespace header_kind

/// Frames the procedure with separator lines and labels its closing line with its signature.
/// Returns ProcStartLine + ProcCountLines + 1 as they are afterwards, 0 when nothing was done
/// because there is no module or no procedure name.
int CommentProcedure(Context& context, std::string_view procName, ProcKind procKind,
                     std::string_view signature);

/// Inserts the module header of that kind above line 1.
void InsertHeader(Context& context, std::string_view headerKind);

/// Pastes " ' ", the date and time and a blank at the caret. The user's clipboard text is kept.
void InsertTimeStamp(Context& context);

/// What InsertTimeStamp pastes.
std::string TimeStampText(Environment& environment);

/// The header template of that kind, "Release Date" replaced by today's short date.
std::string HeaderText(Environment& environment, std::string_view headerKind);

}  // namespace brimwork
