#include "bench/add_ins/report.h"

#include <nlohmann/json.hpp>
#include <system_error>

#include "memory/shared_file.h"
#include "memory/source_error.h"

namespace brimwork::bench {
namespace {

using Json = nlohmann::ordered_json;

const char* NameOf(ConnectMode mode) {
  switch (mode) {
    case ConnectMode::kAfterStartup:
      return "AfterStartup";
    case ConnectMode::kStartup:
      return "Startup";
    case ConnectMode::kExternal:
      return "External";
    case ConnectMode::kCommandLine:
      return "CommandLine";
  }
  return "";
}

const char* NameOf(DisconnectMode mode) {
  return mode == DisconnectMode::kHostShutdown ? "HostShutdown" : "UserClosed";
}

Json JsonOf(const std::vector<HeldObject>& held) {
  Json all = Json::array();
  for (const HeldObject& object : held) {
    all.push_back({{"object", object.name}, {"references", object.references}});
  }
  return all;
}

Json JsonOf(const ConnectionRecord& record) {
  unsigned long references = 0;
  for (const HeldObject& object : record.held) references += object.references;
  Json json{{"progId", record.progId},
            {"mode", NameOf(record.mode)},
            {"connected", record.isConnected},
            {"failure", record.failure},
            {"ended", record.hasEnded}};
  if (record.hasEnded) json["disconnectMode"] = NameOf(record.disconnectMode);
  json["complaints"] = record.complaints;
  json["heldReferences"] = references;
  json["held"] = JsonOf(record.held);
  return json;
}

}  // namespace

std::string ReportOf(const std::deque<ConnectionRecord>& records) {
  Json connections = Json::array();
  for (const ConnectionRecord& record : records) connections.push_back(JsonOf(record));
  const Json report{{"connections", connections}};
  return report.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

void WriteReport(const std::filesystem::path& file, const std::deque<ConnectionRecord>& records) {
  try {
    ReplaceSharedFile(file, ReportOf(records));
  } catch (const std::system_error& error) {
    throw SourceError(file.string(), error.what());
  }
}

}  // namespace brimwork::bench
