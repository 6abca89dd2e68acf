// The enumerators of connection points and of connections.
#pragma once

#include <windows.h>

#include <ocidl.h>

#include <vector>

#include "bench/automation/click_sinks.h"
#include "win32/com_pointer.h"

namespace brimwork::bench {

class Session;

// The caller releases the result.

IEnumConnectionPoints* NewConnectionPointEnumerator(
    Session& session, std::vector<win32::ComPointer<IConnectionPoint>> points);

IEnumConnections* NewConnectionEnumerator(Session& session,
                                          std::vector<ClickSinks::Connection> connections);

}  // namespace brimwork::bench
