// Record text on its way to a file: put into the file's encoding and handed on in pieces of about a megabyte,
// so that saving takes no second copy of a drawing.
#pragma once

#include "host/db/DrawingForm.h"

#include <functional>
#include <string>
#include <string_view>

namespace dxf {

class TextOutput {
 public:
  // Takes the file's bytes in their order; false ends the output.
  using Sink = std::function<bool(std::string_view)>;

  // form outlives the output.
  TextOutput(const DrawingForm& form, Sink sink);

  // Whole tags. text must stay as it is until finish(): records that stood side by side are handed on in one
  // piece. Text is put on a line of its own, also behind a file whose last line lacks its end.
  void put(std::string_view text);
  // The same for text that goes away.
  void putCopy(std::string_view text);
  // False when the sink ended the output.
  bool finish();
  bool isEnded() const { return m_ended; }

 private:
  void take(std::string_view text);
  void flushPending();
  void hand(std::string_view bytes);

  const DrawingForm& m_form;
  Sink m_sink;
  std::string m_buffer;       // encoded
  std::string_view m_pending; // adjoining text that is not looked at yet
  bool m_lineOpen = false;    // what went before lacks its line end
  bool m_ended = false;
  bool m_plain;
};

} // namespace dxf
