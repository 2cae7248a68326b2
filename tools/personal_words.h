// SPDX-License-Identifier: Apache-2.0
//
// Words that a bug report must not show: finds those of a job, and removes them from texts.
#ifndef TQR7_TOOLS_PERSONAL_WORDS_H
#define TQR7_TOOLS_PERSONAL_WORDS_H

#include <cups/ipp.h>

#include <string>
#include <string_view>
#include <vector>

namespace tools {

class PersonalWords {
 public:
  /// Adds a title or a document's name. It is replaced everywhere, also as the scheduler's log and
  /// options escape it. A title of one short word, such as "page", is replaced only where it is a
  /// whole word. One of less than 4 bytes is not replaced, because it occurs everywhere by chance.
  void AddTitle(std::string_view title);

  /// Adds the name of a person or of a machine, which is replaced where it is a whole word.
  void AddName(std::string_view name, std::string_view replacement);

  /// The text with all these words and all numeric network addresses replaced.
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

/// The words of a job: its title and documents, its user and machine, and the machines of the
/// printers that it may have run on, by the addresses of their queues.
PersonalWords words_of_job(ipp_t* job, const std::vector<std::string>& deviceUris);

/// Adds the user who runs this program, and this machine.
void add_own_names(PersonalWords& words);

}  // namespace tools

#endif  // TQR7_TOOLS_PERSONAL_WORDS_H
