#include "plugin/resistance/dialogs/TeePictures.h"

#include <algorithm>

#include "plugin/resistance/CZPLocalResistanceMng.h"

namespace resistance {
namespace {

constexpr std::size_t kFormsInARow = 4;
constexpr int kFormWidth = 170; // as much for each, so that the forms of both rows stand below each other
constexpr int kPictureHeight = 100;

} // namespace

TeePictures::TeePictures(CFormWnd& form) {
  for (const TeeFlow& flow : kTeeFlows)
    if (m_boxes.empty() || m_boxes.back()->GetCaption() != flow.form)
      m_boxes.push_back(std::make_unique<CPictureBox>(form, flow.form));
}

void TeePictures::Show() {
  const CZPLocalResistanceMng& store = *CZPLocalResistanceMng::GetInstance();
  for (const auto& box : m_boxes) {
    CString path;
    store.GetBmp(box->GetCaption(), path);
    box->SetPicture(path);
  }
}

CPictureBox& TeePictures::Of(const TeeFlow& flow) const {
  return **std::find_if(m_boxes.begin(), m_boxes.end(),
                        [&](const auto& box) { return box->GetCaption() == flow.form; });
}

UiLayout TeePictures::FormLayout(CPictureBox& box,
                                 const std::function<UiLayout(std::size_t)>& control) const {
  std::vector<UiLayout> items{ui::Item(box).Size(kFormWidth, kPictureHeight)};
  for (std::size_t flow = 0; flow < std::size(kTeeFlows); ++flow)
    if (&Of(kTeeFlows[flow]) == &box) items.push_back(control(flow));
  items.push_back(ui::Space()); // the pictures of a row end at one height, however many flows they have
  return ui::Column(std::move(items)).Stretch(1).Size(kFormWidth, 0);
}

UiLayout TeePictures::Layout(const std::function<UiLayout(std::size_t)>& control) const {
  std::vector<UiLayout> rows;
  for (std::size_t first = 0; first < m_boxes.size(); first += kFormsInARow) {
    std::vector<UiLayout> row;
    for (std::size_t form = first; form < std::min(first + kFormsInARow, m_boxes.size()); ++form)
      row.push_back(FormLayout(*m_boxes[form], control));
    rows.push_back(ui::Row(std::move(row)));
  }
  return ui::Column(std::move(rows));
}

} // namespace resistance
