#include "support/module_runner.h"

#include <stdexcept>
#include <utility>

#include "environment/text.h"
#include "msgbox/module_source.h"

namespace brimwork {
namespace {

using Arguments = BasicInterpreter::Arguments;

WindowHandle WindowIn(const BasicValue& value) {
  return static_cast<WindowHandle>(static_cast<std::uint32_t>(AsLong(value)));
}

std::uint32_t Unsigned(const BasicValue& value) {
  return static_cast<std::uint32_t>(AsLong(value));
}

template <class Number>
BasicValue Long(Number number) {
  return static_cast<std::int32_t>(number);
}

WindowArea AreaIn(const Arguments& arguments, std::size_t first) {
  return {AsLong(arguments.at(first)), AsLong(arguments.at(first + 1)),
          AsLong(arguments.at(first + 2)), AsLong(arguments.at(first + 3))};
}

[[noreturn]] void RefuseMember(std::string_view name) {
  throw std::logic_error("there is no member " + std::string(name));
}

class FormObject : public BasicObject {
 public:
  explicit FormObject(std::shared_ptr<ScreenForm> form) : form_(std::move(form)) {}

  BasicValue Member(std::string_view name, const Arguments& arguments) override {
    if (EqualNames(name, "hWnd")) return Long(form_->hWnd());
    if (EqualNames(name, "TextHeight")) return form_->TextHeight(AsText(arguments.at(0)));
    if (EqualNames(name, "TextWidth")) return form_->TextWidth(AsText(arguments.at(0)));
    RefuseMember(name);
  }

 private:
  std::shared_ptr<ScreenForm> form_;
};

class ScreenObject : public BasicObject {
 public:
  explicit ScreenObject(FormScreen& screen) : screen_(screen) {}

  BasicValue Member(std::string_view name, const Arguments& /*arguments*/) override {
    if (EqualNames(name, "ActiveForm")) return ActiveForm();
    if (EqualNames(name, "Width")) return screen_.Width();
    if (EqualNames(name, "Height")) return screen_.Height();
    if (EqualNames(name, "TwipsPerPixelX")) return screen_.TwipsPerPixelX();
    if (EqualNames(name, "TwipsPerPixelY")) return screen_.TwipsPerPixelY();
    RefuseMember(name);
  }

 private:
  BasicValue ActiveForm() {
    auto form = screen_.ActiveForm();
    if (form == nullptr) return {};
    return std::make_shared<FormObject>(std::move(form));
  }

  FormScreen& screen_;
};

class AppObject : public BasicObject {
 public:
  explicit AppObject(App& app) : app_(app) {}

  BasicValue Member(std::string_view name, const Arguments& /*arguments*/) override {
    if (EqualNames(name, "hInstance")) return Long(app_.Instance());
    RefuseMember(name);
  }

 private:
  App& app_;
};

std::vector<std::string> SplitText(const std::string& text, const std::string& separator) {
  if (text.empty()) return {};
  const auto parts = Split(text, separator);
  return {parts.begin(), parts.end()};
}

void FillRecord(const BasicValue& value, const WindowRectangle& rectangle) {
  const auto object = std::get<std::shared_ptr<BasicObject>>(value);
  auto& record = dynamic_cast<BasicRecord&>(*object);
  record.members = {{"left", Long(rectangle.left)},
                    {"top", Long(rectangle.top)},
                    {"right", Long(rectangle.right)},
                    {"bottom", Long(rectangle.bottom)}};
}

}  // namespace

ModuleRunner::ModuleRunner(const Environment& environment)
    : environment_(environment), module_(ReadBasicProgram(kModCustomMsgBoxSource)) {
  BindRunTime();
  BindTimers();
  BindWindows();
  BindDialogWindows();
}

void ModuleRunner::FireTimer(std::string_view procedure, WindowHandle window, std::uint32_t message,
                             TimerId id, std::uint32_t time) {
  Arguments arguments = {Long(window), Long(message), Long(id), Long(time)};
  Call(procedure, arguments);
}

void ModuleRunner::BindRunTime() {
  module_.Bind("Screen", std::make_shared<ScreenObject>(environment_.formScreen));
  module_.Bind("App", std::make_shared<AppObject>(environment_.app));
  module_.Bind("Len", [](const Arguments& a) { return Long(AsText(a.at(0)).size()); });
  module_.Bind("Split", [](const Arguments& a) -> BasicValue {
    return SplitText(AsText(a.at(0)), AsText(a.at(1)));
  });
  module_.Bind("UBound", [](const Arguments& a) {
    return Long(std::get<std::vector<std::string>>(a.at(0)).size() - 1);
  });
  module_.Bind("SendKeys", [this](const Arguments& a) -> BasicValue {
    environment_.keyboard.SendKeys(AsText(a.at(0)), a.size() > 1 && AsBoolean(a[1]));
    return {};
  });
}

void ModuleRunner::BindTimers() {
  module_.Bind("SetTimer", [this](const Arguments& a) {
    const std::string procedure = module_.ProcedureAt(AsLong(a.at(3)));
    return Long(environment_.windowTimers.SetTimer(
        WindowIn(a.at(0)), Unsigned(a.at(1)), Unsigned(a.at(2)),
        [this, procedure](WindowHandle window, std::uint32_t message, TimerId id,
                          std::uint32_t time) {
          FireTimer(procedure, window, message, id, time);
        }));
  });
  module_.Bind("KillTimer", [this](const Arguments& a) {
    return Long(environment_.windowTimers.KillTimer(WindowIn(a.at(0)), Unsigned(a.at(1))));
  });
  module_.Bind("MessageBox", [this](const Arguments& a) {
    return Long(environment_.messageBoxes.MessageBox(WindowIn(a.at(0)), AsText(a.at(1)),
                                                     AsText(a.at(2)), AsLong(a.at(3))));
  });
}

void ModuleRunner::BindWindows() {
  module_.Bind("SetWindowPos", [this](const Arguments& a) -> BasicValue {
    const WindowArea area = AreaIn(a, 2);
    environment_.nativeWindows.SetWindowPos(
        WindowIn(a.at(0)),
        {AsLong(a.at(1)), area.left, area.top, area.width, area.height, Unsigned(a.at(6))});
    return Long(1);
  });
  module_.Bind("SendMessage", [this](const Arguments& a) {
    return Long(environment_.nativeWindows.SendMessage(WindowIn(a.at(0)), Unsigned(a.at(1)),
                                                       AsLong(a.at(2)), AsLong(a.at(3))));
  });
}

void ModuleRunner::BindDialogWindows() {
  DialogWindows& windows = environment_.dialogWindows;
  module_.Bind("FindWindow", [&windows](const Arguments& a) {
    return Long(windows.FindWindow(AsText(a.at(0)), AsText(a.at(1))));
  });
  module_.Bind("FindWindowEx", [&windows](const Arguments& a) {
    return Long(windows.FindWindowEx(WindowIn(a.at(0)), WindowIn(a.at(1)), AsText(a.at(2)),
                                     AsText(a.at(3))));
  });
  module_.Bind("SetForegroundWindow", [&windows](const Arguments& a) {
    windows.SetForegroundWindow(WindowIn(a.at(0)));
    return Long(1);
  });
  module_.Bind("GetFocus", [&windows](const Arguments&) { return Long(windows.GetFocus()); });
  module_.Bind("GetWindowRect", [&windows](const Arguments& a) {
    FillRecord(a.at(1), windows.GetWindowRect(WindowIn(a.at(0))));
    return Long(1);
  });
  module_.Bind("MoveWindow", [&windows](const Arguments& a) {
    windows.MoveWindow(WindowIn(a.at(0)), AreaIn(a, 1), AsLong(a.at(5)) != 0);
    return Long(1);
  });
  module_.Bind("CreateWindowEx", [&windows](const Arguments& a) {
    return Long(windows.CreateWindowEx({.className = AsText(a.at(1)),
                                        .text = AsText(a.at(2)),
                                        .style = Unsigned(a.at(3)),
                                        .area = AreaIn(a, 4),
                                        .parent = WindowIn(a.at(8)),
                                        .instance = WindowIn(a.at(10))}));
  });
  module_.Bind("SetWindowText", [&windows](const Arguments& a) {
    windows.SetWindowText(WindowIn(a.at(0)), AsText(a.at(1)));
    return Long(1);
  });
}

}  // namespace brimwork
