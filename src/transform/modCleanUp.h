// Code Clean Up: a set of the other commands over the whole module, in a fixed order.
#pragma once

#include <functional>
#include <string_view>

#include "transform/context.h"

namespace brimwork {

/// Hands a command back to the dispatcher: its caption and the whole-module flag.
using Dispatch = std::function<void(std::string_view caption, bool wholeModule)>;

/// Runs the steps that the setting CleanUpCodeOptions chooses.
void CleanUpCode(Context& context, const Dispatch& dispatch);

}  // namespace brimwork
