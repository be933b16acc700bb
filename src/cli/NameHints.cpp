#include "cli/NameHints.h"

#include <algorithm>
#include <cctype>

namespace lumeric {

namespace {

constexpr size_t kMaxDistance = 2;
constexpr size_t kMaxNames = 3;

std::string lowerCase(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

bool matchedIgnoringCase(NameCandidates::Kind kind) {
  return kind == NameCandidates::kFunction || kind == NameCandidates::kColour;
}

}  // namespace

size_t editDistance(const std::string& first, const std::string& second) {
  const std::string a = lowerCase(first);
  const std::string b = lowerCase(second);
  // Three rows of the table: two back for a swap, the last and this one.
  std::vector<size_t> older(b.size() + 1), last(b.size() + 1), row(b.size() + 1);
  for (size_t j = 0; j <= b.size(); ++j) last[j] = j;
  for (size_t i = 1; i <= a.size(); ++i) {
    row[0] = i;
    for (size_t j = 1; j <= b.size(); ++j) {
      const size_t substitution = last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
      row[j] = std::min({last[j] + 1, row[j - 1] + 1, substitution});
      if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) row[j] = std::min(row[j], older[j - 2] + 1);
    }
    older.swap(last);
    last.swap(row);
  }
  return last[b.size()];
}

std::vector<std::string> nearNames(const NameCandidates& candidates) {
  const std::string word = candidates.word() != nullptr ? candidates.word() : "";
  if (word.empty()) return {};
  std::vector<std::string> names;
  candidates.collect(names);
  struct Near {
    size_t distance;
    size_t order;
    std::string name;
  };
  std::vector<Near> near;
  for (size_t k = 0; k < names.size(); ++k) {
    const std::string& name = names[k];
    if (name == word) continue;
    bool seen = false;
    for (const Near& n : near) seen = seen || n.name == name;
    if (seen) continue;
    const size_t distance = editDistance(word, name);
    const bool wanted = candidates.kind() == NameCandidates::kFieldCase
                            ? distance == 0
                            : distance <= kMaxDistance && !(distance == 0 && matchedIgnoringCase(candidates.kind()));
    if (wanted) near.push_back({distance, k, name});
  }
  std::stable_sort(near.begin(), near.end(), [](const Near& a, const Near& b) { return a.distance < b.distance; });
  std::vector<std::string> result;
  for (size_t k = 0; k < near.size() && k < kMaxNames; ++k) result.push_back(near[k].name);
  return result;
}

std::string hintText(const std::vector<std::string>& names) {
  if (names.empty()) return "";
  std::string text = "did you mean ";
  for (size_t k = 0; k < names.size(); ++k) {
    if (k > 0) text += k + 1 == names.size() ? " or " : ", ";
    text += "\"" + names[k] + "\"";
  }
  return text + "?";
}

}  // namespace lumeric
