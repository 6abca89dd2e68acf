// Which command a user asked for, and where in the module it is to act.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace brimwork {

/// The words on the command line cannot be carried out. One line that says what to write instead.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Where a command acts; nothing given is the whole module.
struct PlaceRequest {
  std::optional<int> line;               // line of the file, from 1
  std::optional<int> column;             // from 1; only with a line
  std::optional<std::string> procedure;  // every procedure of that name

  bool IsGiven() const { return line.has_value() || procedure.has_value(); }
};

struct CommandRequest {
  std::string caption;
  PlaceRequest place;
  bool wholeModule = false;
};

/// Chooses between the command on the whole module and the one at a place. Throws UsageError for a
/// caption that is none, for a command that this tool does not run, and for a place given too much
/// or missing.
CommandRequest MakeCommandRequest(std::string_view caption, const PlaceRequest& place);

/// True for the commands that make another file of the module, which brimwork export runs.
bool IsExport(std::string_view caption);

/// True for the commands on the environment's windows, and for those that open a window and have no
/// counterpart on the command line.
bool NeedsTheEditor(std::string_view caption);

/// The caption that a friendly command name stands for, "" for none.
std::string_view CaptionOf(std::string_view commandName);

/// The friendly command name of a caption, "" for none.
std::string_view CommandNameOf(std::string_view caption);

}  // namespace brimwork
