// SPDX-License-Identifier: Apache-2.0
#include "tools/personal_words.h"

#include <cups/cups.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cctype>

namespace tools {
namespace {

constexpr std::size_t kTitleLeast = 4;  // bytes
// A title of one word with at most so many bytes may be a part of other words: "page".
constexpr std::size_t kCommonWordMost = 9;

// With a backslash before each of these letters.
std::string escaped(std::string_view text, std::string_view letters) {
  std::string result;
  for (const char letter : text) {
    if (letters.find(letter) != std::string_view::npos) {
      result += '\\';
    }
    result += letter;
  }
  return result;
}

bool is_of_word(char letter) {
  return std::isalnum(static_cast<unsigned char>(letter)) != 0 || letter == '_' ||
         static_cast<unsigned char>(letter) >= 0x80;
}

bool is_common_word(std::string_view title) {
  return title.size() <= kCommonWordMost && std::all_of(title.begin(), title.end(), is_of_word);
}

bool stands_as_word(const std::string& text, std::size_t at, std::size_t length) {
  const bool before = at > 0 && is_of_word(text[at - 1]);
  const bool behind = at + length < text.size() && is_of_word(text[at + length]);
  return !before && !behind;
}

void replace(std::string& text, const std::string& word, const std::string& replacement,
             bool anywhere) {
  for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at)) {
    if (anywhere || stands_as_word(text, at, word.size())) {
      text.replace(at, word.size(), replacement);
      at += replacement.size();
    } else {
      ++at;
    }
  }
}

bool is_digit(char letter) {
  return letter >= '0' && letter <= '9';
}

// The length of a numeric network address at that place, or 0.
std::size_t address_at(std::string_view text) {
  std::size_t length = 0;
  for (int number = 0; number < 4; ++number) {
    if (number > 0 && (length >= text.size() || text[length++] != '.')) {
      return 0;
    }
    const std::size_t begin = length;
    while (length < text.size() && is_digit(text[length]) && length - begin < 3) {
      ++length;
    }
    if (length == begin) {
      return 0;
    }
  }
  const std::string_view behind = text.substr(length);
  const bool goes_on =
      !behind.empty() &&
      (is_digit(behind[0]) || (behind[0] == '.' && behind.size() > 1 && is_digit(behind[1])));
  return goes_on ? 0 : length;
}

std::string without_addresses(const std::string& text) {
  std::string result;
  for (std::size_t at = 0; at < text.size();) {
    const bool begins = at == 0 || (!is_digit(text[at - 1]) && text[at - 1] != '.');
    const std::size_t length = begins ? address_at(std::string_view(text).substr(at)) : 0;
    if (length == 0) {
      result += text[at++];
    } else {
      result += "(address)";
      at += length;
    }
  }
  return result;
}

std::string host_of(const std::string& deviceUri) {
  std::array<char, 32> scheme{};
  std::array<char, 256> user{};
  std::array<char, 256> host{};
  std::array<char, 1024> resource{};
  int port = 0;
  httpSeparateURI(HTTP_URI_CODING_ALL, deviceUri.c_str(), scheme.data(), scheme.size(), user.data(),
                  user.size(), host.data(), host.size(), &port, resource.data(), resource.size());
  return host.data();
}

// A machine such as "tqr7.example.org" is also known without its domain.
void add_machine(PersonalWords& words, const std::string& name, const char* replacement) {
  constexpr std::size_t kShortLeast = 3;  // bytes; "a" occurs everywhere
  words.AddName(name, replacement);
  const std::string label = name.substr(0, name.find('.'));
  const bool number = label.find_first_not_of("0123456789") == std::string::npos;
  if (label.size() >= kShortLeast && label.size() < name.size() && !number) {
    words.AddName(label, replacement);
  }
}

}  // namespace

void PersonalWords::Add(Word word) {
  const auto shorter = [&](const Word& other) { return other.word.size() < word.word.size(); };
  words_.insert(std::find_if(words_.begin(), words_.end(), shorter), std::move(word));
}

void PersonalWords::AddTitle(std::string_view title) {
  if (title.size() < kTitleLeast) {
    return;
  }
  if (is_common_word(title)) {
    Add({std::string(title), "(title)", false});
    return;
  }
  for (const std::string_view letters : {"", "\"\\", "\"'\\", " \"'\\", " \"'\\\t{}<>"}) {
    Add({escaped(title, letters), "(title)", true});
  }
  const std::string once = escaped(title, "\"'\\");
  Add({escaped(once, "\"'\\"), "(title)", true});
}

void PersonalWords::AddName(std::string_view name, std::string_view replacement) {
  if (!name.empty()) {
    Add({std::string(name), std::string(replacement), false});
  }
}

std::string PersonalWords::Without(std::string text) const {
  for (const Word& word : words_) {
    replace(text, word.word, word.replacement, word.anywhere);
  }
  return without_addresses(text);
}

PersonalWords words_of_job(ipp_t* job, const std::vector<std::string>& deviceUris) {
  PersonalWords words;
  for (ipp_attribute_t* attribute = ippFirstAttribute(job); attribute != nullptr;
       attribute = ippNextAttribute(job)) {
    const std::string name = ippGetName(attribute) != nullptr ? ippGetName(attribute) : "";
    const char* const text = ippGetString(attribute, 0, nullptr);
    if (text == nullptr) {
      continue;
    }
    if (name == "job-name" || name.starts_with("document-name")) {
      words.AddTitle(text);
    } else if (name == "job-originating-user-name") {
      words.AddName(text, "(user)");
    } else if (name == "job-originating-host-name") {
      add_machine(words, text, "(host)");
    }
  }
  for (const std::string& uri : deviceUris) {
    add_machine(words, host_of(uri), "(printer)");
  }
  return words;
}

void add_own_names(PersonalWords& words) {
  std::array<char, 256> machine{};
  words.AddName(cupsUser(), "(user)");
  if (gethostname(machine.data(), machine.size() - 1) == 0) {
    add_machine(words, machine.data(), "(host)");
  }
}

}  // namespace tools
