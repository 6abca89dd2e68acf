// The splash form, which is also the about box: it shows the logo, the version and the way to the
// web site.
#pragma once

#include <functional>

#include "environment/controls.h"
#include "environment/environment.h"

namespace brimwork {

/// At start it leaves by itself when its timer, which whoever starts the add-in enables, has
/// ticked; as the about box it stays until the user closes it.
class frmSplash : public Form {
 public:
  struct Actions {
    std::function<void()> showSetup;    // loads the setup dialog and shows it
    std::function<void()> openWebSite;  // shows the maker's web site in the user's browser
  };

  frmSplash(const Environment& environment, Actions actions);

  PictureBox picContainer{*this, "picContainer"};
  PictureBox picLogo{*this, "picLogo"};
  Label lblVersion{*this, "lblVersion"};
  Label lblQuote{*this, "lblQuote"};
  Label lblNotice{*this, "lblNotice"};
  Label lblWebSite{*this, "lblWebSite"};
  CommandButton cmdClose{*this, "cmdClose"};
  Timer Timer1{*this, "Timer1"};

 private:
  void Timer1_Timer();
  void lblWebSite_Click();
  void cmdClose_Click();

  bool IsFirstRun();

  Environment environment_;
  Actions actions_;
};

}  // namespace brimwork
