#include "textform/json_fields.h"

#include <cstring>

#include "textform/codec.h"
#include "textform/json_tree.h"

namespace kq::textform {

namespace {

struct TypeName {
  int32_t type;
  const char* name;
};
constexpr TypeName kTypeNames[] = {
    {kVarNone, "none"},
    {kVarLong, "Long"},
    {kVarDouble, "Double"},
    {kVarString, "String"},
    {kConstLong, "Long constant"},
    {kConstDouble, "Double constant"},
    {kConstString, "String constant"},
};

std::string Quoted(const std::string& utf8) {
  return Json(utf8).dump(-1, ' ', false, Json::error_handler_t::replace);
}

// The bytes of a JSON string in the system's code page.
std::string BytesOf(const JsonNode& j, const Place& where) {
  std::string bytes, bad;
  if (!Utf8ToBytes(j.Str(), bytes, bad)) {
    throw Fault(where, bad + " has no Windows-1252 character");
  }
  return bytes;
}

}  // namespace

std::string Place::Str() const {
  if (parent_ == nullptr) return "/";
  std::string path = parent_->parent_ == nullptr ? std::string() : parent_->Str();
  path += '/';
  if (isIndex_) return path + std::to_string(index_);
  for (const char c : key_) {
    if (c == '~') {
      path += "~0";
    } else if (c == '/') {
      path += "~1";
    } else {
      path += c;
    }
  }
  return path;
}

const JsonNode& Member(const JsonNode& object, const char* key, const Place& where) {
  if (!object.is_object()) throw Fault(where, "expected an object");
  const JsonNode* member = object.Find(key);
  if (member == nullptr) throw Fault(where, std::string("\"") + key + "\" is missing");
  return *member;
}

void OnlyKnown(const JsonNode& object, std::initializer_list<const char*> known,
               const Place& where) {
  if (!object.is_object()) throw Fault(where, "expected an object");
  for (size_t i = 0; i < object.size(); ++i) {
    const std::string_view key = object.Key(i);
    bool found = false;
    for (const char* k : known) found = found || key == k;
    if (!found) throw Fault(Place(where, key), "unknown member " + Quoted(std::string(key)));
  }
}

// ---- To JSON

Json TextToJson(const char* field, size_t width) {
  const void* nul = std::memchr(field, '\0', width);
  if (nul != nullptr) {
    const size_t length = static_cast<size_t>(static_cast<const char*>(nul) - field);
    size_t i = length + 1;
    while (i < width && field[i] == ' ') ++i;
    if (i == width) return BytesToUtf8(std::string_view(field, length));
  }
  const char fill = field[width - 1];
  size_t prefix = width;
  while (prefix > 0 && field[prefix - 1] == fill) --prefix;
  Json j = Json::object();
  j["bytes"] = BytesToUtf8(std::string_view(field, prefix));
  j["fill"] = BytesToUtf8(std::string_view(&fill, 1));
  return j;
}

Json DisplayToJson(const char* line, size_t width) {
  size_t length = width;
  while (length > 0 && line[length - 1] == ' ') --length;
  return BytesToUtf8(std::string_view(line, length));
}

Json VarTypeToJson(int32_t type) {
  for (const TypeName& t : kTypeNames) {
    if (t.type == type) return t.name;
  }
  return type;
}

Json VarRefToJson(const VarRef& v) {
  Json j = Json::object();
  j["type"] = VarTypeToJson(v.VarRefType);
  j["name"] = TextToJson(v.VarRefName, sizeof v.VarRefName);
  return j;
}

Json LabelRefToJson(const LabelRef& l) {
  Json j = Json::object();
  j["name"] = TextToJson(l.LabelRefName, sizeof l.LabelRefName);
  j["line"] = l.LabelRefLine;
  return j;
}

namespace {

Json ElementToJson(const Field& f, const uint8_t* at) {
  switch (f.kind) {
    case Kind::I32: {
      int32_t n;
      std::memcpy(&n, at, sizeof n);
      return n;
    }
    case Kind::Text:
      return TextToJson(reinterpret_cast<const char*>(at), f.width);
    case Kind::VarRef: {
      VarRef v;
      std::memcpy(&v, at, sizeof v);
      return VarRefToJson(v);
    }
    case Kind::LabelRef: {
      LabelRef l;
      std::memcpy(&l, at, sizeof l);
      return LabelRefToJson(l);
    }
  }
  return nullptr;
}

void ElementFromJson(const JsonNode& j, const Place& where, const Field& f, uint8_t* at) {
  switch (f.kind) {
    case Kind::I32: {
      const int32_t n = I32FromJson(j, where);
      std::memcpy(at, &n, sizeof n);
      return;
    }
    case Kind::Text:
      TextFromJson(j, where, reinterpret_cast<char*>(at), f.width);
      return;
    case Kind::VarRef: {
      VarRef v;
      std::memcpy(&v, at, sizeof v);
      VarRefFromJson(j, where, v);
      std::memcpy(at, &v, sizeof v);
      return;
    }
    case Kind::LabelRef: {
      LabelRef l;
      std::memcpy(&l, at, sizeof l);
      LabelRefFromJson(j, where, l);
      std::memcpy(at, &l, sizeof l);
      return;
    }
  }
}

}  // namespace

Json RecordToJson(const RecordLayout& layout, const uint8_t* record) {
  Json j = Json::object();
  for (const Field& f : layout.fields) {
    if (!f.array) {
      j[f.name] = ElementToJson(f, record + f.offset);
      continue;
    }
    Json a = Json::array();
    for (size_t i = 0; i < f.count; ++i)
      a.push_back(ElementToJson(f, record + f.offset + i * f.width));
    j[f.name] = std::move(a);
  }
  return j;
}

// ---- From JSON

void TextFromJson(const JsonNode& j, const Place& where, char* field, size_t width) {
  if (j.is_string()) {
    const std::string bytes = BytesOf(j, where);
    if (bytes.find('\0') != std::string::npos) {
      throw Fault(where, "a text may not hold a NUL; write {\"bytes\": ..., \"fill\": ...}");
    }
    if (bytes.size() > width - 1) {
      throw Fault(where, Quoted(std::string(j.Str())) + " is " + std::to_string(bytes.size()) +
                             " characters long; the field holds at most " +
                             std::to_string(width - 1));
    }
    std::memset(field, ' ', width);
    std::memcpy(field, bytes.data(), bytes.size());
    field[bytes.size()] = '\0';
    return;
  }
  if (!j.is_object()) throw Fault(where, "expected a text: a string or {\"bytes\", \"fill\"}");
  OnlyKnown(j, {"bytes", "fill"}, where);
  const JsonNode& b = Member(j, "bytes", where);
  const JsonNode& f = Member(j, "fill", where);
  if (!b.is_string()) throw Fault(Place(where, "bytes"), "expected a string");
  if (!f.is_string()) throw Fault(Place(where, "fill"), "expected a string");
  const std::string bytes = BytesOf(b, Place(where, "bytes"));
  const std::string fill = BytesOf(f, Place(where, "fill"));
  if (bytes.size() > width) {
    throw Fault(
        Place(where, "bytes"),
        std::to_string(bytes.size()) + " bytes are more than the field's " + std::to_string(width));
  }
  if (fill.size() != 1) throw Fault(Place(where, "fill"), "expected one character");
  std::memset(field, fill[0], width);
  std::memcpy(field, bytes.data(), bytes.size());
}

void DisplayFromJson(const JsonNode& j, const Place& where, char* line, size_t width) {
  if (!j.is_string()) throw Fault(where, "expected a string");
  const std::string bytes = BytesOf(j, where);
  if (bytes.size() > width) {
    throw Fault(where, "the DisplayLine is " + std::to_string(bytes.size()) +
                           " characters long; it holds at most " + std::to_string(width));
  }
  std::memset(line, ' ', width);
  std::memcpy(line, bytes.data(), bytes.size());
}

int32_t I32FromJson(const JsonNode& j, const Place& where, int64_t low, int64_t high) {
  const auto range = [&] {
    return "expected a whole number from " + std::to_string(low) + " to " + std::to_string(high);
  };
  if (j.is_number_integer()) {
    // An unsigned number above the signed range is out of range too.
    if (j.is_number_unsigned() && j.Uint64() > static_cast<uint64_t>(high)) {
      throw Fault(where, j.dump() + " is out of range: " + range());
    }
    const int64_t n = j.Int64();
    if (n < low || n > high) throw Fault(where, j.dump() + " is out of range: " + range());
    return static_cast<int32_t>(n);
  }
  throw Fault(where, range());
}

int32_t VarTypeFromJson(const JsonNode& j, const Place& where) {
  if (j.is_string()) {
    for (const TypeName& t : kTypeNames) {
      if (j.Str() == t.name) return t.type;
    }
    throw Fault(where, "unknown variable type " + j.dump() +
                           "; one of \"none\", \"Long\", \"Double\", \"String\", \"Long "
                           "constant\", \"Double constant\", \"String constant\" or a number");
  }
  return I32FromJson(j, where);
}

void VarRefFromJson(const JsonNode& j, const Place& where, VarRef& v) {
  OnlyKnown(j, {"type", "name"}, where);
  v.VarRefType = VarTypeFromJson(Member(j, "type", where), Place(where, "type"));
  TextFromJson(Member(j, "name", where), Place(where, "name"), v.VarRefName, sizeof v.VarRefName);
}

void LabelRefFromJson(const JsonNode& j, const Place& where, LabelRef& l) {
  OnlyKnown(j, {"name", "line"}, where);
  TextFromJson(Member(j, "name", where), Place(where, "name"), l.LabelRefName,
               sizeof l.LabelRefName);
  l.LabelRefLine = I32FromJson(Member(j, "line", where), Place(where, "line"));
}

void RecordFromJson(const JsonNode& j, const Place& where, const RecordLayout& layout,
                    uint8_t* record) {
  if (!j.is_object()) throw Fault(where, "expected an object");
  for (size_t m = 0; m < j.size(); ++m) {
    const std::string_view key = j.Key(m);
    const JsonNode& value = j[m];
    const Field* field = nullptr;
    for (const Field& f : layout.fields) {
      if (key == f.name) field = &f;
    }
    const Place place(where, key);
    if (field == nullptr) {
      throw Fault(place, "unknown field " + Quoted(std::string(key)) + " of " + layout.type);
    }
    if (!field->array) {
      ElementFromJson(value, place, *field, record + field->offset);
      continue;
    }
    if (!value.is_array() || value.size() != field->count) {
      throw Fault(place, "expected an array of " + std::to_string(field->count));
    }
    for (size_t i = 0; i < field->count; ++i) {
      ElementFromJson(value[i], Place(place, i), *field, record + field->offset + i * field->width);
    }
  }
}

}  // namespace kq::textform
