// The pictures of tees and crosses, each with the controls of its flows below it: what the page of the
// coefficients and the dialog of a section have in common.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "host/ui/CPictureBox.h"
#include "host/ui/UiLayout.h"
#include "plugin/resistance/TeeFlows.h"

namespace resistance {

class TeePictures {
 public:
  explicit TeePictures(CFormWnd& form);

  // As the store has them; a form without one stays blank.
  void Show();
  CPictureBox& Of(const TeeFlow& flow) const;
  // `control` gives what stands below its picture for a flow, by the flow's index.
  UiLayout Layout(const std::function<UiLayout(std::size_t)>& control) const;

  const std::vector<std::unique_ptr<CPictureBox>>& Boxes() const { return m_boxes; }

 private:
  UiLayout FormLayout(CPictureBox& box, const std::function<UiLayout(std::size_t)>& control) const;

  std::vector<std::unique_ptr<CPictureBox>> m_boxes; // one for each form, which is its caption
};

// A control for each flow, called by the flow, that belongs to the flow's picture.
template <class Control> class TeeControls {
 public:
  template <class... Arguments>
  TeeControls(CFormWnd& form, const TeePictures& pictures, const Arguments&... arguments) {
    for (const TeeFlow& flow : kTeeFlows) {
      m_controls.push_back(std::make_unique<Control>(form, flow.flow, arguments...));
      m_controls.back()->SetBelongsTo(pictures.Of(flow));
    }
  }
  Control& operator[](std::size_t flow) const { return *m_controls[flow]; }

 private:
  std::vector<std::unique_ptr<Control>> m_controls;
};

} // namespace resistance
