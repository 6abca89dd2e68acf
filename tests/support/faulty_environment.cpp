#include "support/faulty_environment.h"

#include <algorithm>
#include <array>
#include <utility>

#include "support/faulty_calls.h"
#include "support/faulty_desktop.h"
#include "support/faulty_vbe.h"

namespace brimwork {

struct FaultyEnvironment::Decorators {
  Decorators(const Environment& inner, Fault fault)
      : calls(std::move(fault)),
        vbe(inner.vbe, calls),
        screen(inner.screen, calls),
        clipboard(inner.clipboard, calls),
        keyboard(inner.keyboard, calls),
        dialogs(inner.dialogs, calls),
        messageLoop(inner.messageLoop, calls),
        registry(inner.registry, calls),
        settingsArea(inner.settingsArea, calls),
        shellFolders(inner.shellFolders, calls),
        clock(inner.clock, calls) {}

  FaultyCalls calls;
  FaultyVbe vbe;
  FaultyScreen screen;
  FaultyClipboard clipboard;
  FaultyKeyboard keyboard;
  FaultyDialogs dialogs;
  FaultyMessageLoop messageLoop;
  FaultyRegistry registry;
  FaultySettingsArea settingsArea;
  FaultyShellFolders shellFolders;
  FaultyClock clock;
};

FaultyEnvironment::FaultyEnvironment(const Environment& inner, Fault fault)
    : decorators_(std::make_unique<Decorators>(inner, std::move(fault))) {}

FaultyEnvironment::~FaultyEnvironment() = default;

Environment FaultyEnvironment::Parts() {
  Decorators& all = *decorators_;
  return {all.vbe,         all.screen,   all.clipboard,    all.keyboard,     all.dialogs,
          all.messageLoop, all.registry, all.settingsArea, all.shellFolders, all.clock};
}

const std::vector<std::string_view>& FaultyEnvironment::Operations() const {
  return decorators_->calls.Operations();
}

bool FaultyEnvironment::RanAway() const { return decorators_->calls.RanAway(); }

bool FaultyEnvironment::CanAnswerNothing(std::string_view operation) {
  constexpr std::array<std::string_view, 4> kObjects = {"VBE.ActiveCodePane", "VBE.ActiveVBProject",
                                                        "VBE.MainWindow", "CodePane.Module"};
  return operation.starts_with("Registry.") ||
         std::find(kObjects.begin(), kObjects.end(), operation) != kObjects.end();
}

}  // namespace brimwork
