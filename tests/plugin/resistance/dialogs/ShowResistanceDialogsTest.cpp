#include "plugin/resistance/dialogs/ShowResistanceDialogs.h"

#include "host/ed/AcApDocManager.h"
#include "plugin/resistance/CZPLocalResistanceSettings.h"
#include "tests/plugin/resistance/ResistanceFixture.h"
#include "tests/support/DialogFixture.h"

namespace {

using ShowResistanceDialogs = ResistanceFixture;

TEST_F(ShowResistanceDialogs, RunWithTheResourcesOfThePlugIn) {
  UiFrontEndScript frontEnd;
  CWnd parent;
  CZPLocalResistanceSettings section;
  const std::size_t outside = acDocManagerPtr()->resourceDepth();
  for (const auto& [show, closed] :
       {std::pair(std::function<int()>([&] { return ZP::ShowLRMDlg(&parent); }), IDCANCEL),
        {[&] { return ZP::ShowLRSDlg(section, &parent); }, 0}}) {
    std::size_t inside = 0;
    frontEnd.runs = {[&](CDialog& dialog) {
      inside = acDocManagerPtr()->resourceDepth();
      EXPECT_EQ(dialog.GetParent(), &parent);
    }};
    EXPECT_EQ(show(), closed);
    EXPECT_EQ(inside, outside + 1);
    EXPECT_EQ(acDocManagerPtr()->resourceDepth(), outside);
  }
}

} // namespace
