// The --call JSON: the one place that reads a call with nlohmann-json.
#include <nlohmann/json.hpp>

#include "sim/call_script.h"

namespace kq::sim {

namespace {

constexpr const char* kOutcomeNames[] = {"busy",     "answered",   "nocall", "intercept",
                                         "noanswer", "nodialtone", "error"};

bool IsKey(char c) {
  return (c >= '0' && c <= '9') || c == '*' || c == '#' || (c >= 'A' && c <= 'D');
}

using nlohmann::json;

int64_t Millis(const json& j, const char* field) {
  if (!j.is_number_integer() || j.get<int64_t>() < 0) {
    throw std::invalid_argument(std::string("\"") + field +
                                "\" must be a whole number of milliseconds, 0 or more");
  }
  return j.get<int64_t>();
}

std::string Text(const json& j, const char* field) {
  if (!j.is_string()) throw std::invalid_argument(std::string("\"") + field + "\" must be a text");
  return j.get<std::string>();
}

}  // namespace

const char* OutcomeName(DialOutcome o) {
  return kOutcomeNames[static_cast<int>(o)];
}

std::optional<DialOutcome> OutcomeOfName(const std::string& name) {
  for (int i = 0; i < 7; ++i) {
    if (name == kOutcomeNames[i]) return static_cast<DialOutcome>(i);
  }
  return std::nullopt;
}

bool ParseKeys(const std::string& keys, std::vector<ScriptKey>& out) {
  for (char c : keys) {
    if (!IsKey(c)) return false;
    out.push_back({c, -1});
  }
  return true;
}

std::optional<CallScript> ParseCallJson(const std::string& text, std::string& error) {
  json j = json::parse(text, nullptr, false);
  if (j.is_discarded()) {
    error = "the call is not valid JSON";
    return std::nullopt;
  }
  if (!j.is_object()) {
    error = "the call must be a JSON object";
    return std::nullopt;
  }
  CallScript s;
  try {
    for (auto it = j.begin(); it != j.end(); ++it) {
      const std::string& k = it.key();
      const json& v = it.value();
      if (k == "start") {
        s.start = Text(v, "start");
        if (s.start.size() != 19)
          throw std::invalid_argument("\"start\" must read YYYY-MM-DD HH:MM:SS");
      } else if (k == "channel") {
        if (!v.is_number_integer() || v.get<int64_t>() < 1 || v.get<int64_t>() > 9999) {
          throw std::invalid_argument("\"channel\" must be a number from 1 to 9999");
        }
        s.channel = v.get<int>();
      } else if (k == "call") {
        if (!v.is_boolean()) throw std::invalid_argument("\"call\" must be true or false");
        s.call = v.get<bool>();
      } else if (k == "ringAt") {
        s.ringAt = Millis(v, "ringAt");
      } else if (k == "rings") {
        if (!v.is_number_integer() || v.get<int64_t>() < 0 || v.get<int64_t>() > 1000) {
          throw std::invalid_argument("\"rings\" must be a number from 0 to 1000");
        }
        s.rings = v.get<int>();
      } else if (k == "callerId") {
        s.callerId = Text(v, "callerId");
      } else if (k == "calledId") {
        s.calledId = Text(v, "calledId");
      } else if (k == "keys") {
        if (v.is_string()) {
          if (!ParseKeys(v.get<std::string>(), s.keys)) {
            throw std::invalid_argument("\"keys\" may hold only 0-9, *, #, A-D");
          }
        } else if (v.is_array()) {
          for (const json& e : v) {
            if (!e.is_object() || !e.contains("key")) {
              throw std::invalid_argument("each entry of \"keys\" must be {\"key\":K,\"at\":MS}");
            }
            const std::string key = Text(e["key"], "key");
            if (key.size() != 1 || !IsKey(key[0])) {
              throw std::invalid_argument("\"key\" must be one of 0-9, *, #, A-D");
            }
            int64_t at = e.contains("at") ? Millis(e["at"], "at") : -1;
            for (auto f = e.begin(); f != e.end(); ++f) {
              if (f.key() != "key" && f.key() != "at") {
                throw std::invalid_argument("unknown field \"" + f.key() + "\" in a key");
              }
            }
            s.keys.push_back({key[0], at});
          }
        } else {
          throw std::invalid_argument("\"keys\" must be a text or an array");
        }
      } else if (k == "hangup") {
        if (v.is_boolean()) {
          s.hangupWhenDone = v.get<bool>();
        } else {
          s.hangupAt = Millis(v, "hangup");
        }
      } else if (k == "outcomes") {
        if (!v.is_array()) throw std::invalid_argument("\"outcomes\" must be an array");
        for (const json& e : v) {
          auto o = OutcomeOfName(Text(e, "outcomes"));
          if (!o) {
            throw std::invalid_argument(
                "an outcome must be busy, answered, nocall, intercept, noanswer, nodialtone or "
                "error");
          }
          s.outcomes.push_back(*o);
        }
      } else if (k == "busyTables") {
        if (!v.is_array()) throw std::invalid_argument("\"busyTables\" must be an array");
        for (const json& e : v) s.busyTables.push_back(Text(e, "busyTables"));
      } else if (k == "voice") {
        s.voiceFile = Text(v, "voice");
      } else {
        throw std::invalid_argument("unknown field \"" + k + "\"");
      }
    }
  } catch (const std::exception& e) {
    error = e.what();
    return std::nullopt;
  }
  return s;
}

}  // namespace kq::sim
