#include "textform/json_tree.h"

#include <cstring>

namespace kq::textform {

const JsonNode& JsonNode::operator[](size_t i) const {
  return tree_->nodes_[tree_->kids_[first_ + i]];
}

std::string_view JsonNode::Key(size_t i) const {
  return tree_->names_[first_ + i];
}

const JsonNode* JsonNode::Find(std::string_view key) const {
  for (size_t i = 0; i < count_; ++i) {
    if (tree_->names_[first_ + i] == key) return &(*this)[i];
  }
  return nullptr;
}

Json JsonNode::ToJson() const {
  switch (type_) {
    case Type::Null:
      return nullptr;
    case Type::Boolean:
      return Bool();
    case Type::Integer:
      return Int64();
    case Type::Unsigned:
      return Uint64();
    case Type::Float: {
      double d;
      std::memcpy(&d, &integer_, sizeof d);
      return d;
    }
    case Type::String:
      return std::string(text_);
    case Type::Array: {
      Json a = Json::array();
      for (size_t i = 0; i < count_; ++i) a.push_back((*this)[i].ToJson());
      return a;
    }
    case Type::Object: {
      Json o = Json::object();
      for (size_t i = 0; i < count_; ++i) o[std::string(Key(i))] = (*this)[i].ToJson();
      return o;
    }
  }
  return nullptr;
}

// The SAX handler: the values of an open array or object wait on a stack until it closes,
// then go to the tree's kids side by side.
class JsonTree::Builder {
 public:
  explicit Builder(JsonTree& tree) : tree_(tree) {}

  bool null() { return Add(JsonNode::Type::Null, 0); }
  bool boolean(bool b) { return Add(JsonNode::Type::Boolean, b ? 1 : 0); }
  bool number_integer(int64_t n) { return Add(JsonNode::Type::Integer, n); }
  bool number_unsigned(uint64_t n) {
    return Add(JsonNode::Type::Unsigned, static_cast<int64_t>(n));
  }
  bool number_float(double d, const std::string&) {
    int64_t bits;
    std::memcpy(&bits, &d, sizeof bits);
    return Add(JsonNode::Type::Float, bits);
  }
  bool string(std::string& s) {
    Add(JsonNode::Type::String, 0);
    tree_.nodes_.back().text_ = Store(s);
    return true;
  }
  bool binary(Json::binary_t&) { return Add(JsonNode::Type::Null, 0); }  // not in JSON text
  bool start_object(size_t) { return Open(JsonNode::Type::Object); }
  bool start_array(size_t) { return Open(JsonNode::Type::Array); }
  bool end_object() { return Close(); }
  bool end_array() { return Close(); }
  bool key(std::string& k) {
    name_ = Store(k);
    for (size_t i = open_.back().start; i < pending_.size(); ++i) {
      if (pendingNames_[i] == name_) replace_ = i;
    }
    return true;
  }
  // A syntax fault, or a number too large for a double: the text is refused in the
  // library's own words.
  bool parse_error(size_t, const std::string&, const nlohmann::detail::exception& e) {
    error_ = e.what();
    return false;
  }

  const std::string& Error() const { return error_; }

 private:
  static constexpr size_t kNone = SIZE_MAX;
  struct Frame {
    uint32_t node;
    size_t start;  // of its values in pending_
  };

  std::string_view Store(const std::string& s) {
    std::string& chars = tree_.chars_;
    if (chars.size() + s.size() > chars.capacity()) {
      return tree_.overflow_.emplace_back(s);
    }
    const size_t at = chars.size();
    chars.append(s);
    return std::string_view(chars).substr(at, s.size());
  }

  bool Add(JsonNode::Type type, int64_t value) {
    const auto index = static_cast<uint32_t>(tree_.nodes_.size());
    JsonNode& n = tree_.nodes_.emplace_back();
    n.tree_ = &tree_;
    n.type_ = type;
    n.integer_ = value;
    if (open_.empty()) return true;  // the root
    if (replace_ != kNone) {
      pending_[replace_] = index;
      replace_ = kNone;
    } else {
      pending_.push_back(index);
      pendingNames_.push_back(name_);
    }
    name_ = {};
    return true;
  }

  bool Open(JsonNode::Type type) {
    Add(type, 0);
    open_.push_back({static_cast<uint32_t>(tree_.nodes_.size() - 1), pending_.size()});
    return true;
  }

  bool Close() {
    const Frame f = open_.back();
    open_.pop_back();
    JsonNode& n = tree_.nodes_[f.node];
    n.first_ = static_cast<uint32_t>(tree_.kids_.size());
    n.count_ = static_cast<uint32_t>(pending_.size() - f.start);
    const auto from = static_cast<std::ptrdiff_t>(f.start);
    tree_.kids_.insert(tree_.kids_.end(), pending_.begin() + from, pending_.end());
    tree_.names_.insert(tree_.names_.end(), pendingNames_.begin() + from, pendingNames_.end());
    pending_.resize(f.start);
    pendingNames_.resize(f.start);
    return true;
  }

  JsonTree& tree_;
  std::vector<Frame> open_;
  std::vector<uint32_t> pending_;
  std::vector<std::string_view> pendingNames_;
  std::string_view name_;
  size_t replace_ = kNone;
  std::string error_;
};

JsonTree::JsonTree(std::string_view text) : text_(text) {
  chars_.reserve(text.size());
  nodes_.reserve(text.size() / 16 + 1);
  kids_.reserve(text.size() / 16 + 1);
  names_.reserve(text.size() / 16 + 1);
}

bool JsonTree::Parse(std::string& error) {
  Builder builder(*this);
  if (Json::sax_parse(text_.data(), text_.data() + text_.size(), &builder)) return true;
  error = builder.Error();
  return false;
}

}  // namespace kq::textform
