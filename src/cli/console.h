// Standard output and standard error: results go to the one, everything said about them to the
// other, each line whole also when several threads speak.
#pragma once

#include <cstdint>
#include <mutex>
#include <string>
#include <string_view>

namespace brimwork {

enum class ColorChoice : std::uint8_t { kAuto, kAlways, kNever };

class Console {
 public:
  Console(ColorChoice color, bool quiet, bool verbose);

  /// Writes to standard output. Throws std::runtime_error when it cannot be written.
  void Out(std::string_view text);

  /// One line of an error: shown whatever the user asked for.
  void Error(std::string_view message);

  void Warning(std::string_view line) { WriteErrorLine(line); }

  /// A line to standard error, unless --quiet.
  void Note(std::string_view line);
  /// A line to standard error with --verbose only.
  void Detail(std::string_view line);

  /// Writes to standard error as it stands, for a question that is answered on the same line.
  void Ask(std::string_view text);

  /// A line that the next one overwrites; only on a terminal and only when the run takes long.
  void Progress(std::string_view line);

  bool ColorsOut() const { return colorsOut_; }
  bool ColorsError() const { return colorsError_; }
  bool OutIsTerminal() const { return outIsTerminal_; }
  bool ShowsProgress() const { return showsProgress_; }

 private:
  void WriteErrorLine(std::string_view line);
  void WriteError(std::string_view text);

  std::mutex mutex_;
  bool quiet_;
  bool verbose_;
  bool outIsTerminal_;
  bool colorsOut_;
  bool colorsError_;
  bool showsProgress_;
  bool progressLineStands_ = false;
};

}  // namespace brimwork
