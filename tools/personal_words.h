// SPDX-License-Identifier: Apache-2.0
//
// Words that a bug report does not need to show, and their removal from texts.
#ifndef TQR7_TOOLS_PERSONAL_WORDS_H
#define TQR7_TOOLS_PERSONAL_WORDS_H

#include <cups/ipp.h>

#include <string>
#include <string_view>
#include <vector>

namespace tools {

class PersonalWords {
 public:
  /// A title or a document's name: replaced wherever it stands, also as the scheduler's log and
  /// options escape it. One that is a single short word, such as "page", is replaced where it
  /// stands as a word. Shorter ones than 4 bytes stand everywhere by chance, and are left.
  void AddTitle(std::string_view title);

  /// The name of a person or of a machine: replaced where it stands as a word.
  void AddName(std::string_view name, std::string_view replacement);

  /// The text with all words replaced, and numeric network addresses too.
  std::string Without(std::string text) const;

 private:
  struct Word {
    std::string word;
    std::string replacement;
    bool anywhere;
  };

  void Add(Word word);

  std::vector<Word> words_;  ///< longest first: one may be a part of another
};

/// Its title and documents, its user and machine as the scheduler tells them, and the printers'
/// machines out of the addresses of the queues that it may have run on.
PersonalWords words_of_job(ipp_t* job, const std::vector<std::string>& deviceUris);

/// The user who runs this program, and this machine.
void add_own_names(PersonalWords& words);

}  // namespace tools

#endif  // TQR7_TOOLS_PERSONAL_WORDS_H
