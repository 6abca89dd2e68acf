// The way to the web.
#pragma once

#include <string_view>

#include "environment/environment.h"

namespace brimwork {

/// The maker's home page.
inline constexpr std::string_view kWebSiteAddress = "https://vantrel.example/";

/// Shows the address in the user's browser. A run-time error is passed over.
void OpenWebAddress(Shell& shell, std::string_view address);

}  // namespace brimwork
