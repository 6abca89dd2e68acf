// The add-in's state for as long as it is connected; one object, handed to every command.
#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "core/add_in_forms.h"
#include "core/frmInfo.h"
#include "environment/resume_next.h"
#include "transform/context.h"

namespace brimwork {

struct AddIn {
  explicit AddIn(const Environment& parts, std::shared_ptr<const void> owner = nullptr)
      : ownerOfParts(std::move(owner)), environment(parts), context{environment} {}
  AddIn(const AddIn&) = delete;
  AddIn& operator=(const AddIn&) = delete;

  /// Runs a step of a command. A run-time error ends the step only; the user is not told, but
  /// onSkippedError is.
  template <class Step>
  bool Attempt(Step&& step) {
    const auto error = ResumeNext(step);
    if (error && onSkippedError) onSkippedError(*error);
    return !error;
  }

  std::shared_ptr<const void> ownerOfParts;  // goes last; null where the parts outlive this
  Environment environment;
  Context context;
  frmInfo progressWindow{environment};
  std::unique_ptr<AddInForms> forms;  // null where there is nobody to see them
  std::function<void(const RunTimeError&)> onSkippedError;
};

}  // namespace brimwork
