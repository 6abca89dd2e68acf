#include "support/faulty_environment.h"

#include <algorithm>
#include <array>
#include <utility>

#include "support/faulty_calls.h"
#include "support/faulty_desktop.h"
#include "support/faulty_form_host.h"
#include "support/faulty_message_boxes.h"
#include "support/faulty_rich_text_box.h"
#include "support/faulty_tools.h"
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
        clock(inner.clock, calls),
        app(inner.app, calls),
        nativeWindows(inner.nativeWindows, calls),
        dialogWindows(inner.dialogWindows, calls),
        windowTimers(inner.windowTimers, calls),
        messageBoxes(inner.messageBoxes, calls),
        formScreen(inner.formScreen, calls),
        richTextBoxes(inner.richTextBoxes, calls),
        textFiles(inner.textFiles, calls),
        wordProcessors(inner.wordProcessors, calls),
        shell(inner.shell, calls),
        helpViewer(inner.helpViewer, calls),
        formHost(inner.formHost, calls) {}

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
  FaultyApp app;
  FaultyNativeWindows nativeWindows;
  FaultyDialogWindows dialogWindows;
  FaultyWindowTimers windowTimers;
  FaultyMessageBoxes messageBoxes;
  FaultyFormScreen formScreen;
  FaultyRichTextBoxes richTextBoxes;
  FaultyTextFiles textFiles;
  FaultyWordProcessors wordProcessors;
  FaultyShell shell;
  FaultyHelpViewer helpViewer;
  FaultyFormHost formHost;
};

FaultyEnvironment::FaultyEnvironment(const Environment& inner, Fault fault)
    : decorators_(std::make_unique<Decorators>(inner, std::move(fault))) {}

FaultyEnvironment::~FaultyEnvironment() = default;

Environment FaultyEnvironment::Parts() {
  Decorators& all = *decorators_;
  return {.vbe = all.vbe,
          .screen = all.screen,
          .clipboard = all.clipboard,
          .keyboard = all.keyboard,
          .dialogs = all.dialogs,
          .messageLoop = all.messageLoop,
          .registry = all.registry,
          .settingsArea = all.settingsArea,
          .shellFolders = all.shellFolders,
          .clock = all.clock,
          .app = all.app,
          .nativeWindows = all.nativeWindows,
          .dialogWindows = all.dialogWindows,
          .windowTimers = all.windowTimers,
          .messageBoxes = all.messageBoxes,
          .formScreen = all.formScreen,
          .richTextBoxes = all.richTextBoxes,
          .textFiles = all.textFiles,
          .wordProcessors = all.wordProcessors,
          .shell = all.shell,
          .helpViewer = all.helpViewer,
          .formHost = all.formHost};
}

const std::vector<std::string_view>& FaultyEnvironment::Operations() const {
  return decorators_->calls.Operations();
}

bool FaultyEnvironment::RanAway() const { return decorators_->calls.RanAway(); }

bool FaultyEnvironment::CanAnswerNothing(std::string_view operation) {
  constexpr std::array<std::string_view, 12> kObjects = {"VBE.ActiveCodePane",
                                                         "VBE.ActiveVBProject",
                                                         "VBE.MainWindow",
                                                         "VBE.ActiveWindow",
                                                         "VBE.WindowOfCaption",
                                                         "VBE.CommandBarOfName",
                                                         "VBE.FindControl",
                                                         "CodePane.Module",
                                                         "CodePane.ContainingWindow",
                                                         "WordProcessors.CreateObject",
                                                         "VBComponent.Module",
                                                         "FormScreen.ActiveForm"};
  return operation.starts_with("Registry.") ||
         std::find(kObjects.begin(), kObjects.end(), operation) != kObjects.end();
}

}  // namespace brimwork
