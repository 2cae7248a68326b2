// SPDX-License-Identifier: Apache-2.0
//
// Messages to people in their own language. The source says them in English; the catalogues in
// ppd/po say them in others. What programs read (JSON, keywords, names of options, lines of a log)
// is never translated.
//
//   filled(_("no queue has a job %d"), number)
//   filled(_n("%zu sheet", "%zu sheets", count), count)
#ifndef TQR7_LANGUAGE_MESSAGES_H
#define TQR7_LANGUAGE_MESSAGES_H

#include <cstddef>
#include <string>

namespace language {

/// Once, at the start of a program: takes the language from the environment. Numbers are read and
/// written as in C all the same.
void begin();

/// The message in the person's language.
[[gnu::format_arg(1)]] const char* _(const char* english);

/// The message in the form that goes with the count.
[[gnu::format_arg(1), gnu::format_arg(2)]] const char* _n(const char* one, const char* several,
                                                          std::size_t count);

/// Marks a message that _() gets later, such as one in a table.
constexpr const char* N_(const char* english) {
  return english;
}

/// The message with its values filled in, as printf does.
[[gnu::format(printf, 1, 2)]] std::string filled(const char* format, ...);

/// A number for people, with the decimal sign of their country.
std::string decimal(double value, int places);

/// As long as one of these lives, messages stay English: for what programs read, or other people.
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
