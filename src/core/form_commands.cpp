#include "core/form_commands.h"

#include "core/modHTMLHelp.h"
#include "core/modMiscellaneousCode.h"

namespace brimwork {
namespace {

void ShowForm(AddIn& addIn, Form& (AddInForms::*form)()) {
  addIn.Attempt([&] {
    if (addIn.forms) (*addIn.forms.*form)().Show();
  });
}

using HelpOperation = void (*)(HelpViewer&, std::string_view, std::string_view);

void OpenHelp(AddIn& addIn, HelpOperation open) {
  Environment& environment = addIn.environment;
  addIn.Attempt([&] { open(environment.helpViewer, environment.app.Path(), kHelpFileName); });
}

}  // namespace

void ShowMessageBoxDesigner(AddIn& addIn) { ShowForm(addIn, &AddInForms::MessageBoxDesigner); }

void ShowSetupDialog(AddIn& addIn) { ShowForm(addIn, &AddInForms::SetupDialog); }

void ShowAboutBox(AddIn& addIn) { ShowForm(addIn, &AddInForms::Splash); }

void OpenHelpContents(AddIn& addIn) { OpenHelp(addIn, ShowHelpContents); }

void OpenHelpIndex(AddIn& addIn) { OpenHelp(addIn, ShowHelpIndex); }

void OpenWebSite(AddIn& addIn) { OpenWebAddress(addIn.environment.shell, kWebSiteAddress); }

}  // namespace brimwork
