#include "msgbox/code_generator.h"

#include <algorithm>
#include <concepts>
#include <limits>
#include <memory>

#include "environment/message_boxes.h"
#include "environment/run_time_error.h"
#include "environment/text.h"

namespace brimwork {
namespace {

constexpr bool IsControl(char c) { return static_cast<unsigned char>(c) < ' '; }

std::string_view DropTrailingControls(std::string_view text) {
  while (!text.empty() && IsControl(text.back())) text.remove_suffix(1);
  return text;
}

/// Raises error 6 when the sum needs more bits than its summands have.
template <std::signed_integral Integer>
Integer CheckedSum(Integer a, Integer b) {
  const std::int64_t sum = std::int64_t{a} + b;
  if (sum < std::numeric_limits<Integer>::min() || sum > std::numeric_limits<Integer>::max()) {
    throw RunTimeError(error_number::kOverflow, "Overflow");
  }
  return static_cast<Integer>(sum);
}

std::string Quoted(std::string_view text) { return '"' + std::string(text) + '"'; }

std::string PromptLiteral(const MsgBoxDesign& design) {
  return Quoted(EscapePrompt(design.prompt, LineEnds::kConverted));
}

std::string StyleNumber(const MsgBoxDesign& design) { return std::to_string(MsgBoxStyle(design)); }

std::string TitleLiteral(const MsgBoxDesign& design) { return Quoted(Trim(design.title)); }

bool HasRequiredModule(VBProject& project) {
  const auto components = project.VBComponents();
  return std::ranges::any_of(
      components, [](const auto& component) { return component->Name() == kRequiredModuleName; });
}

bool UserWantsRequiredModule(Dialogs& dialogs) {
  return dialogs.MsgBox(
             "You have selected to create a custom msgbox which requires additional code to work "
             "properly\r\nWould you like me to add the required module to your current project?",
             message_box::kYesNo + message_box::kQuestion,
             "Add Required Module") == message_box_result::kYes;
}

template <class Object>
Object& Required(const std::shared_ptr<Object>& object, const char* complaint) {
  if (object == nullptr) throw RunTimeError(error_number::kObjectNotSet, complaint);
  return *object;
}

/// The environment may have written a line into the new module: the text brings its own.
void AddModule(VBProject& project, std::string_view moduleText) {
  const auto component = project.AddVBComponent(component_type::kStandardModule);
  VBComponent& added = Required(component, "no component was added");
  added.SetName(kRequiredModuleName);
  const auto module = added.Module();
  CodeModule& code = Required(module, "the new component has no module");
  code.DeleteLines(1, 1);
  code.InsertLines(1, moduleText);
}

}  // namespace

std::string EscapePrompt(std::string_view text, LineEnds lineEnds) {
  std::string escaped(DropTrailingControls(Trim(text)));
  escaped = Replace(escaped, "\"", "\" & chr(34) & \"");
  if (lineEnds == LineEnds::kConverted) escaped = Replace(escaped, "\r\n", "\" & vbCrLf & \"");
  return Replace(escaped, "& \"\" &", "&");
}

std::string ButtonCaptionsText(const std::vector<std::string>& captions) {
  std::string text;
  for (const std::string_view caption : captions) {
    if (Trim(caption).empty()) continue;
    if (!text.empty()) text += ',';
    text += Trim(caption);
  }
  return text;
}

std::int32_t MsgBoxStyle(const MsgBoxDesign& design) {
  std::int16_t sum = CheckedSum(design.buttonsSet, design.icon);
  sum = CheckedSum(sum, design.defaultButton);
  sum = CheckedSum(sum, design.modality);
  return CheckedSum(std::int32_t{sum}, design.options);
}

std::string PlainMsgBoxCode(const MsgBoxDesign& design) {
  return "MsgBox " + PromptLiteral(design) + ',' + StyleNumber(design) + ',' + TitleLiteral(design);
}

std::string CustomMsgBoxCode(const MsgBoxDesign& design) {
  std::string code = design.hasCheckBox ? "Dim CheckBoxValue As Boolean\r\n" : "";
  code += "CreateSpecialMsgBox ";
  code += PromptLiteral(design) + ',';
  code += StyleNumber(design) + ',';
  code += TitleLiteral(design) + ',';
  code += std::to_string(design.timeOut) + ',';
  code += std::to_string(design.x) + ',';
  code += std::to_string(design.y) + ',';
  code += Quoted(design.checkBoxText);
  code += design.hasCheckBox ? ", CheckBoxValue," : ",,";
  code += std::to_string(design.buttonCount) + ',';
  code += Quoted(ButtonCaptionsText(design.buttonCaptions)) + ',';
  code += Quoted(design.standardCaptions);
  return code;
}

void AddRequiredModule(Environment& environment, std::string_view moduleText) {
  const auto project = environment.vbe.ActiveVBProject();
  VBProject& active = Required(project, "there is no active project");
  if (HasRequiredModule(active)) return;
  if (!UserWantsRequiredModule(environment.dialogs)) return;
  AddModule(active, moduleText);
  environment.dialogs.MsgBox("Added modCustomMsgBox to your project", message_box::kInformation,
                             "Added Required Module");
}

}  // namespace brimwork
