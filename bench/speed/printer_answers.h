// SPDX-License-Identifier: Apache-2.0
//
// The backend and the printer behind it, as far as the filter asks them: whether the connection
// goes both ways, to drain the output, and the printer's answers. The printer is good and ready,
// always.
#ifndef TQR7_BENCH_SPEED_PRINTER_ANSWERS_H
#define TQR7_BENCH_SPEED_PRINTER_ANSWERS_H

namespace bench {

/// Answers on the side channel until the filter has closed its end, and puts the printer's answers
/// into the back channel.
///
/// The print stream is not looked at: it may go nowhere. The filter drains its output before it
/// reads an answer and at no other time, so the answer is put there when it drains: one to the
/// job's status request, then for each sheet one to its status request and one to its readiness
/// query.
void answer_for_printer(int side_channel, int back_channel);

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_PRINTER_ANSWERS_H
