#include "core/Connect.h"

#include <string_view>
#include <utility>

#include "core/modHTMLHelp.h"
#include "core/recent_project.h"
#include "environment/resume_next.h"
#include "ide_windows/modTweakWindow.h"
#include "settings/setting_keys.h"
#include "settings/settings.h"

namespace brimwork {
namespace {

bool IsOn(Environment& environment, std::string_view key) {
  return GetCommandSetting(environment, key) == "True";
}

void ShowSplash(AddIn& addIn) {
  frmSplash& splash = addIn.forms->splash;
  SetTopMost(addIn.environment, splash.hWnd(), true);
  splash.Show();
  splash.Timer1.Enabled = true;
}

void Unload(Form& form) {
  ResumeNext([&] { form.Unload(); });
}

void UnloadForms(AddIn& addIn) {
  Unload(addIn.progressWindow);
  if (!addIn.forms) return;
  Unload(addIn.forms->setupDialog);
  Unload(addIn.forms->codeViewer);
  Unload(addIn.forms->messageBoxDesigner);
  Unload(addIn.forms->splash);
}

}  // namespace

void Connect::AddinInstance_OnConnection(const Environment& application,
                                         std::shared_ptr<const void> owner) {
  AddinInstance_OnDisconnection();
  addIn_ = std::make_shared<AddIn>(application, std::move(owner));
  menus_ = std::make_shared<Menus>(addIn_);
  if (!ResumeNext([this] { StartUp(); })) return;
  ResumeNext([&] {
    application.dialogs.MsgBox("Unable to correctly connect the add-in: Brimwork",
                               message_box::kCritical, kApplicationTitle);
  });
}

void Connect::StartUp() {
  const auto addIn = addIn_;
  const auto menus = menus_;
  addIn->forms = std::make_unique<AddInForms>(addIn->environment);
  addIn->forms->splash.Load();
  if (IsOn(addIn->environment, setting::kSplashScreen)) ShowSplash(*addIn);
  addIn->progressWindow.Load();
  menus->BuildToolbar();
  if (!RunMessages(*addIn)) return;
  menus->BuildAddInsMenu();
  if (!RunMessages(*addIn)) return;
  menus->BuildPopups();
}

bool Connect::RunMessages(AddIn& addIn) {
  addIn.environment.messageLoop.DoEvents();
  return addIn_.get() == &addIn;
}

void Connect::AddinInstance_OnStartupComplete() {
  if (!IsConnected()) return;
  const auto addIn = addIn_;
  ResumeNext([&] {
    if (IsOn(addIn->environment, setting::kAutoLoad)) ReopenProject(addIn->environment);
  });
}

// An environment with templates of another installation is not the one that the recent projects
// were made with.
void Connect::ReopenProject(Environment& environment) {
  const StartOptions options = ReadStartOptions(environment.registry);
  if (options.promptForProject != "0") return;
  usesOwnTemplates_ = LiesBesideProgram(options.templatesDirectory, environment.vbe.FullName());
  if (!usesOwnTemplates_) return;
  ResumeNext([&] { environment.messageLoop.DoEvents(); });
  OpenRecentProject(environment.vbe);
}

// The members are emptied first: what is removed here may let messages run, and with them this.
void Connect::AddinInstance_OnDisconnection() {
  const auto addIn = std::exchange(addIn_, nullptr);
  const auto menus = std::exchange(menus_, nullptr);
  usesOwnTemplates_ = false;
  if (!addIn) return;
  menus->RemoveToolbar();
  menus->RemoveAddInsMenu();
  menus->RemovePopups();
  UnloadForms(*addIn);
  ResumeNext([&] {
    Environment& environment = addIn->environment;
    CloseAllHelp(environment.helpViewer, environment.app.Path(), kHelpFileName);
  });
}

}  // namespace brimwork
