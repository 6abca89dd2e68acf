#include "core/form_commands.h"

#include "core/modHTMLHelp.h"
#include "core/modMiscellaneousCode.h"

namespace brimwork {
namespace {

template <auto form>
void ShowForm(AddIn& addIn) {
  addIn.Attempt([&] {
    if (addIn.forms) ((*addIn.forms).*form).Show();
  });
}

using HelpOperation = void (*)(HelpViewer&, std::string_view, std::string_view);

void OpenHelp(AddIn& addIn, HelpOperation open) {
  Environment& environment = addIn.environment;
  addIn.Attempt([&] { open(environment.helpViewer, environment.app.Path(), kHelpFileName); });
}

}  // namespace

void ShowMessageBoxDesigner(AddIn& addIn) { ShowForm<&AddInForms::messageBoxDesigner>(addIn); }

void ShowSetupDialog(AddIn& addIn) { ShowForm<&AddInForms::setupDialog>(addIn); }

void ShowAboutBox(AddIn& addIn) { ShowForm<&AddInForms::splash>(addIn); }

void OpenHelpContents(AddIn& addIn) { OpenHelp(addIn, ShowHelpContents); }

void OpenHelpIndex(AddIn& addIn) { OpenHelp(addIn, ShowHelpIndex); }

void OpenWebSite(AddIn& addIn) { OpenWebAddress(addIn.environment.shell, kWebSiteAddress); }

}  // namespace brimwork
