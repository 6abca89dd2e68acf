// What a command was asked to add to a module and to take from it; everything else is the user's.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace brimwork {

/// The lines of an error handler: a jump to it in the body, and a block in front of the procedure's
/// closing line.
struct HandlerAllowance {
  /// The lines below "ErrorTrap:" as the setting has them, the placeholder still in place.
  std::vector<std::string> templateLines;
  std::string placeholder;  // stands for pathPrefix and a procedure's name
  std::string pathPrefix;   // the project's and the module's name, each with a dot behind it
  bool resumeNext = false;  // "On Error Resume Next" instead of the jump and the block
};

struct Allowance {
  /// Labels that the lines had before may go ("10: x = 1", also one by another).
  bool labelsMayGo = false;
  /// A line may get its own line number behind the change as its label.
  bool labelsMayCome = false;

  /// A separator, one line or several, may be put between lines; empty: none.
  std::vector<std::string> separatorLines;
  bool blankLinesMayGo = false;
  /// The comment of a line that closes a procedure may come, go and change.
  bool closingCommentsMayChange = false;

  std::optional<HandlerAllowance> handler;

  /// Lines that may be put above line 1, all of them or none.
  std::vector<std::string> headerLines;

  /// The insides of literals and the text of comments may change, line by line.
  bool spellingMayChange = false;

  /// A text that may be put into so many lines, once into each; empty: none.
  std::string stamp;
  int stamps = 1;
};

}  // namespace brimwork
