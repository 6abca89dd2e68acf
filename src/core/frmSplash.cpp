#include "core/frmSplash.h"

#include <utility>

#include "core/frmSplash_layout.h"
#include "settings/setting_keys.h"

namespace brimwork {

frmSplash::frmSplash(const Environment& environment, Actions actions)
    : Form(environment.formHost, SplashLayout()),
      environment_(environment),
      actions_(std::move(actions)) {
  Timer1.OnTimer = [this] { Timer1_Timer(); };
  lblWebSite.OnClick = [this] { lblWebSite_Click(); };
  const auto close = [this] { cmdClose_Click(); };
  cmdClose.OnClick = close;
  picContainer.OnClick = close;
  picLogo.OnClick = close;
  for (Label* label : {&lblVersion, &lblQuote, &lblNotice}) label->OnClick = close;
}

// Only the setup dialog stores that it is no longer the first run.
void frmSplash::Timer1_Timer() {
  Timer1.Enabled = false;
  Unload();
  if (IsFirstRun()) actions_.showSetup();
  environment_.messageLoop.DoEvents();
}

bool frmSplash::IsFirstRun() {
  return GetCommandSetting(environment_, setting::kFirstRun) == "True";
}

void frmSplash::lblWebSite_Click() { actions_.openWebSite(); }

// Whoever sends the splash form away at start must not miss what comes behind it.
void frmSplash::cmdClose_Click() {
  if (Timer1.Enabled) {
    Timer1_Timer();
  } else {
    Unload();
  }
}

}  // namespace brimwork
