#include "transform/modCleanUp.h"

#include <array>
#include <string>

#include "environment/resume_next.h"
#include "environment/text.h"
#include "settings/setting_keys.h"
#include "transform/code_source.h"
#include "transform/modCommentCode.h"

namespace brimwork {
namespace {

struct Step {
  std::string_view optionWord;
  std::string_view caption;
  bool wholeModule;
};

// Line numbers come off before anything else moves the lines and go back on last.
constexpr std::array<Step, 7> kSteps{{
    {"LineNumber", "Remove Line Numbers", true},
    {"SpellCheck", "Spell Check - Quotes and Comments", false},
    {"Header", "Standard Header", false},
    {"Comment", "Comment All Procedures", true},
    {"Error", "Insert Error Handling", true},
    {"Indent", "Indent All Procedures", true},
    {"LineNumber", "Add Line Numbers", true},
}};

/// The lines above the first declaration as one text.
std::string TextAboveProcedures(CodeModule& module) {
  int lines = module.CountOfDeclarationLines();
  const ProcedureName first = module.ProcOfLine(lines + 1);
  if (!first.name.empty()) lines = module.ProcBodyLine(first.name, first.kind) - 1;
  return lines > 0 ? module.Lines(1, lines) : std::string();
}

bool HasHeader(Environment& environment, CodeModule& module) {
  const std::string text = TextAboveProcedures(module);
  return Contains(text, HeaderText(environment, header_kind::kStandard)) ||
         Contains(text, HeaderText(environment, header_kind::kAdapted));
}

}  // namespace

void CleanUpCode(Context& context, const Dispatch& dispatch) {
  Environment& environment = context.environment;
  WithCodeSource(environment, [&](CodeModule& module) {
    const std::string options = GetCommandSetting(environment, setting::kCleanUpCodeOptions);
    for (const Step& step : kSteps) {
      ResumeNext([&] {
        if (!Contains(options, step.optionWord)) return;
        if (step.optionWord == "Header" && HasHeader(environment, module)) return;
        dispatch(step.caption, step.wholeModule);
      });
      const bool isLast = &step == &kSteps.back();
      if (!isLast) ResumeNext([&] { environment.messageLoop.DoEvents(); });
    }
  });
}

}  // namespace brimwork
