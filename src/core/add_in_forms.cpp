#include "core/add_in_forms.h"

#include "core/modMiscellaneousCode.h"

namespace brimwork {

AddInForms::AddInForms(const Environment& environment)
    : setupDialog(environment),
      codeViewer(environment.formHost),
      messageBoxDesigner(environment, codeViewer),
      splash(environment,
             {.showSetup = [this] { setupDialog.Show(); },
              .openWebSite =
                  [&shell = environment.shell] { OpenWebAddress(shell, kWebSiteAddress); }}) {}

}  // namespace brimwork
