// What the writers of all formats share.
#pragma once

#include <functional>
#include <string>

#include "environment/environment.h"
#include "environment/resume_next.h"
#include "export/progress_form.h"

namespace brimwork {

struct ExportTools {
  Environment& environment;
  ProgressForm& form;

  /// Told of the error that ended a writer early, which the user is not told of; may be empty. The
  /// error's line counts in the exported text.
  std::function<void(const RunTimeError&)> onError;
};

/// The progress window, shown with a message for as long as it lives.
class ShownProgress {
 public:
  ShownProgress(ProgressForm& form, const std::string& heading, const std::string& message)
      : form_(form) {
    form_.ProgressMessage(message, heading);
    form_.Show();
  }
  ~ShownProgress() { form_.Hide(); }
  ShownProgress(const ShownProgress&) = delete;
  ShownProgress& operator=(const ShownProgress&) = delete;

 private:
  ProgressForm& form_;
};

/// Runs write, which returns whether it wrote the file. A run-time error is told to onError only
/// and makes the result false.
template <class Write>
bool WriteOrReport(const ExportTools& tools, Write write) {
  bool isWritten = false;
  const auto error = ResumeNext([&] { isWritten = write(); });
  if (error && tools.onError) tools.onError(*error);
  return !error && isWritten;
}

}  // namespace brimwork
