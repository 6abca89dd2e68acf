// The environment's code module: the lines of one source module and the procedures in them.
// Lines are numbered from 1 and hold UTF-8 text without a line end; columns count characters
// from 1. Every operation may raise RunTimeError.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace brimwork {

/// The environment's procedure kinds; a Sub and a Function are both kProcedure.
enum class ProcKind { kProcedure = 0, kPropertyLet = 1, kPropertySet = 2, kPropertyGet = 3 };

/// The name under which the environment knows a procedure. An empty name means no procedure.
struct ProcedureName {
  std::string name;
  ProcKind kind = ProcKind::kProcedure;
};

/// A stretch of a module's text, as carets and selections give it. The end column is the one behind
/// the last character.
struct Selection {
  int startLine = 1;
  int startColumn = 1;
  int endLine = 1;
  int endColumn = 1;

  bool operator==(const Selection&) const = default;
};

class CodeModule {
 public:
  virtual ~CodeModule() = default;

  /// The module's name (its VB_Name).
  virtual std::string Name() = 0;

  /// The same number for every object that stands for the same module, while that module lives.
  virtual std::uintptr_t Identity() = 0;

  virtual int CountOfLines() = 0;

  /// The number of lines of the declarations section: all lines when there is no procedure.
  virtual int CountOfDeclarationLines() = 0;

  /// The lines from startLine on, joined with CR LF; what lies behind the end is not there, so
  /// reading wholly behind the end gives "". Line 0 raises error 9.
  virtual std::string Lines(int startLine, int count) = 0;

  /// Lines(line, 1) into a string of the caller's: who reads line after line need not allocate
  /// each.
  virtual void ReadLine(int line, std::string& text) { text = Lines(line, 1); }

  /// Inserts text before line; CR LF in it makes several lines, n line ends n + 1 lines. Behind the
  /// end it appends. Line 0 raises error 9.
  virtual void InsertLines(int line, std::string_view text) = 0;

  /// Removes count lines, or as many as there are. Line 0 raises error 9.
  virtual void DeleteLines(int startLine, int count = 1) = 0;

  /// Replaces one line; CR LF in text makes it several. A line that is not there raises error 9.
  virtual void ReplaceLine(int line, std::string_view text) = 0;

  /// The procedure that holds the line; an empty name outside every procedure. Line 0 raises
  /// error 9.
  virtual ProcedureName ProcOfLine(int line) = 0;

  /// First line of the procedure, with the comment and blank lines that belong to it. Of several
  /// procedures of one name and kind it is the one that the latest ProcOfLine named, else the
  /// first. An unknown procedure raises error 35; so for the two calls below.
  virtual int ProcStartLine(std::string_view name, ProcKind kind) = 0;

  /// Number of lines from ProcStartLine to the procedure's last line.
  virtual int ProcCountLines(std::string_view name, ProcKind kind) = 0;

  /// The line of the Sub, Function or Property declaration.
  virtual int ProcBodyLine(std::string_view name, ProcKind kind) = 0;

  /// Searches range for target, comparing case exactly. An end line or end column of -1 is the end
  /// of the module or line. When found, returns true and sets range to the match.
  virtual bool Find(std::string_view target, Selection& range) = 0;
};

}  // namespace brimwork
