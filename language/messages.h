// SPDX-License-Identifier: Apache-2.0
//
// Messages to people in their own language. They are English in the source; the catalogues in
// ppd/po have the translations. What programs and developers read (JSON, keywords, names of
// options, lines of a log) is never translated.
//
//   filled(_("no queue has a job %d"), number)
//   filled(_n("%zu dot", "%zu dots", count), count)
#ifndef TQR7_LANGUAGE_MESSAGES_H
#define TQR7_LANGUAGE_MESSAGES_H

#include <cstddef>
#include <string>

namespace language {

/// Takes the language from the environment. Call it once, at the start of a program. It does not
/// change how numbers are read and written.
void begin();

/// The message in the person's language.
[[gnu::format_arg(1)]] const char* _(const char* english);

/// The message in the person's language, in the form for this count.
[[gnu::format_arg(1), gnu::format_arg(2)]] const char* _n(const char* one, const char* several,
                                                          std::size_t count);

/// Marks a message that is passed to _() later, such as one in a table.
constexpr const char* N_(const char* english) {
  return english;
}

/// The message with its values filled in, as printf does.
[[gnu::format(printf, 1, 2)]] std::string filled(const char* format, ...);

/// A number for people, with the decimal sign of their country.
std::string decimal(double value, int places);

/// As long as such an object exists, messages are English: for programs, or for other people.
class English {
 public:
  /// Does nothing where it is not `wanted`.
  explicit English(bool wanted = true);
  English(const English&) = delete;
  English& operator=(const English&) = delete;
  ~English();

 private:
  bool wanted_;
};

}  // namespace language

#endif  // TQR7_LANGUAGE_MESSAGES_H
