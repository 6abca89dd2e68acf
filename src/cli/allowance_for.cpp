#include "cli/allowance_for.h"

#include <string>
#include <vector>

#include "cli/spell_run.h"
#include "environment/text.h"
#include "settings/setting_keys.h"
#include "transform/modCommentCode.h"
#include "transform/modErrorHandling.h"

namespace brimwork {
namespace {

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  for (const std::string_view line : SplitLines(text)) lines.emplace_back(line);
  return lines;
}

void AllowNumbers(Allowance& allowance) {
  allowance.labelsMayGo = true;
  allowance.labelsMayCome = true;
}

void AllowFrames(Allowance& allowance, Environment& environment) {
  allowance.separatorLines = LinesOf(GetCommandSetting(environment, setting::kSeparator));
  allowance.blankLinesMayGo = true;
  allowance.closingCommentsMayChange = true;
}

/// The project is asked for its name only where the handler wants it.
std::string PathPrefix(Environment& environment) {
  return environment.vbe.ActiveVBProject()->Name() + '.' +
         environment.vbe.ActiveCodePane()->Module()->Name() + '.';
}

void AllowHandlers(Allowance& allowance, Environment& environment) {
  const std::string text = GetCommandSetting(environment, setting::kErrorHandling);
  HandlerAllowance handler;
  handler.templateLines = LinesOf(text);
  handler.placeholder = kPathPlaceholder;
  if (Contains(text, kPathPlaceholder)) handler.pathPrefix = PathPrefix(environment);
  allowance.handler = handler;
}

void AllowHeader(Allowance& allowance, Environment& environment, std::string_view headerKind) {
  allowance.headerLines = LinesOf(HeaderText(environment, headerKind));
}

void AllowCleanUp(Allowance& allowance, Environment& environment) {
  const std::string steps = GetCommandSetting(environment, setting::kCleanUpCodeOptions);
  if (Contains(steps, "LineNumber")) AllowNumbers(allowance);
  if (Contains(steps, "Header")) AllowHeader(allowance, environment, header_kind::kStandard);
  if (Contains(steps, "Comment")) AllowFrames(allowance, environment);
  if (Contains(steps, "Error")) AllowHandlers(allowance, environment);
  if (Contains(steps, "SpellCheck")) allowance.spellingMayChange = true;
}

}  // namespace

Allowance AllowanceFor(std::string_view caption, Environment& environment) {
  Allowance allowance;
  if (caption == "Add Line Numbers") AllowNumbers(allowance);
  if (caption == "Remove Line Numbers") allowance.labelsMayGo = true;
  if (caption == "Comment Procedure" || caption == "Comment All Procedures") {
    AllowFrames(allowance, environment);
  }
  if (caption == "Insert Error Handling") AllowHandlers(allowance, environment);
  if (caption == "Standard Header") AllowHeader(allowance, environment, header_kind::kStandard);
  if (caption == "Adapted Header") AllowHeader(allowance, environment, header_kind::kAdapted);
  if (caption == "Insert Time Stamp") allowance.stamp = TimeStampText(environment);
  if (caption == kSpellCheckCaption) allowance.spellingMayChange = true;
  if (caption == "Code Clean Up") AllowCleanUp(allowance, environment);
  return allowance;
}

}  // namespace brimwork
