// What one line of Visual Basic text is: comment, declaration, closing statement, conditional
// compilation. The rules look at lines, not at a syntax tree, so half-written code is read as well.
#pragma once

#include <optional>
#include <string_view>

#include "environment/code_module.h"

namespace brimwork {

/// How a line stands to the line above it.
enum class Continues { kNothing, kStatement, kComment };

/// What the line below `line` continues. above: what `line` itself continues.
Continues ContinuedBelow(std::string_view line, Continues above);

/// Blanks and tabs only.
bool IsBlankLine(std::string_view line);

/// A line that starts with ' or Rem, or that continues a comment.
bool IsCommentLine(std::string_view line, Continues above);

/// A line that starts with #If, #ElseIf, #Else, #End If or #Const, in any case.
bool IsConditionalCompilationLine(std::string_view line);

enum class ConditionalLine { kNone, kIf, kElse, kEndIf };  // kElse: #Else or #ElseIf
ConditionalLine ConditionalLineOf(std::string_view line);

/// A procedure's declaration as it stands in its line.
struct Declaration {
  ProcKind kind = ProcKind::kProcedure;
  std::string_view word;  // Sub, Function or Property, as written
  std::string_view name;  // without its type character
};

/// The declaration that starts the line; the caller knows that the line continues nothing and that
/// it stands in no Type or Enum block.
std::optional<Declaration> ParseDeclaration(std::string_view line);

/// True when the line opens a Type or Enum block.
bool OpensTypeBlock(std::string_view line);

/// True when the line holds an End Type or End Enum statement.
bool ClosesTypeBlock(std::string_view line);

/// True when the line holds an End Sub, End Function or End Property statement: at its start
/// (behind a numeric label) when it continues nothing, or behind a ":", outside literals and
/// comments, in any case.
bool ClosesProcedure(std::string_view line, Continues above);

}  // namespace brimwork
