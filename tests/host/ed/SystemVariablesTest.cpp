#include "host/ed/acedVariables.h"
#include "tests/support/EditorFixture.h"

namespace {

class Variables : public EditorFixture {
 protected:
  static CString text(const wchar_t* name) {
    resbuf value{};
    EXPECT_EQ(RTNORM, acedGetVar(name, &value));
    EXPECT_EQ(RTSTR, value.restype);
    const CString result = value.resval.rstring;
    acutDelString(value.resval.rstring);
    return result;
  }
  static int set(const wchar_t* name, short value) {
    resbuf buffer{};
    buffer.restype = RTSHORT;
    buffer.resval.rint = value;
    return acedSetVar(name, &buffer);
  }
  static int set(const wchar_t* name, double value) {
    resbuf buffer{};
    buffer.restype = RTREAL;
    buffer.resval.rreal = value;
    return acedSetVar(name, &buffer);
  }
  static int set(const wchar_t* name, std::wstring value) {
    resbuf buffer{};
    buffer.restype = RTSTR;
    buffer.resval.rstring = value.data();
    return acedSetVar(name, &buffer);
  }
  static double real(const wchar_t* name) {
    resbuf value{};
    EXPECT_EQ(RTNORM, acedGetVar(name, &value));
    EXPECT_EQ(RTREAL, value.restype);
    return value.resval.rreal;
  }
};

void setScale() {
  SystemVariables::set(L"LTSCALE", 25.0);
}

} // namespace

TEST_F(Variables, TheUnknownIsAnError) {
  resbuf value{};
  EXPECT_EQ(RTERROR, acedGetVar(L"NOSUCH", &value));
  EXPECT_EQ(RTERROR, set(L"NOSUCH", short{1}));
  EXPECT_EQ(RTERROR, acedGetVar(L"CLAYER", nullptr));
}

TEST_F(Variables, TheCurrentLayerIsSetByName) {
  addLayer(L"采暖");
  EXPECT_EQ(L"0", text(L"clayer"));
  EXPECT_EQ(RTNORM, set(L"CLAYER", std::wstring(L"采暖")));
  EXPECT_EQ(L"采暖", text(L"CLAYER"));
  EXPECT_EQ(RTREJ, set(L"CLAYER", std::wstring(L"没有")));
  EXPECT_EQ(RTREJ, set(L"CLAYER", short{1}));
}

TEST_F(Variables, TheDrawingsVariablesAreUndoneWithIt) {
  define(L"TSCALE", setScale);
  const double before = real(L"LTSCALE");
  run(L"TSCALE");
  EXPECT_EQ(25.0, real(L"LTSCALE"));
  database().undo().undo();
  EXPECT_EQ(before, real(L"LTSCALE"));
}

TEST_F(Variables, ValuesAreHeldToTypeAndRange) {
  EXPECT_EQ(RTREJ, set(L"LTSCALE", 0.0));
  EXPECT_EQ(RTREJ, set(L"LTSCALE", -1.0));
  EXPECT_EQ(RTNORM, set(L"LTSCALE", short{2}));
  EXPECT_EQ(2.0, real(L"LTSCALE"));
  EXPECT_EQ(RTREJ, set(L"INSUNITS", 1.5));
  EXPECT_EQ(RTREJ, set(L"INSUNITS", short{25}));
  EXPECT_EQ(RTREJ, set(L"ACADVER", std::wstring(L"x")));
  EXPECT_EQ(RTREJ, acedSetVar(L"INSUNITS", nullptr));
}

TEST_F(Variables, EveryVariableCanBeReadAndSetToItself) {
  for (const auto& name : SystemVariables::names()) {
    SystemVariables::Value value;
    ASSERT_EQ(SystemVariables::Result::ok, SystemVariables::get(name, value)) << name.ToUtf8();
    EXPECT_FALSE(SystemVariables::title(name).IsEmpty());
    if (SystemVariables::isReadOnly(name)) {
      EXPECT_EQ(SystemVariables::Result::readOnly, SystemVariables::set(name, value));
      continue;
    }
    EXPECT_EQ(SystemVariables::Result::ok, SystemVariables::set(name, value)) << name.ToUtf8();
    SystemVariables::Value again;
    SystemVariables::get(name, again);
    EXPECT_EQ(value.index(), again.index());
    EXPECT_TRUE(value == again) << name.ToUtf8();
  }
}

TEST_F(Variables, SessionVariablesOutliveTheDrawing) {
  EXPECT_EQ(RTNORM, set(L"OSMODE", short{0}));
  acDocManager->newDocument();
  EXPECT_EQ(0, SystemVariables::integer(L"OSMODE"));
}

TEST_F(Variables, WithoutADrawingItsVariablesAreErrors) {
  acDocManager->closeAll();
  resbuf value{};
  EXPECT_EQ(RTERROR, acedGetVar(L"LTSCALE", &value));
  EXPECT_EQ(RTERROR, set(L"LTSCALE", 1.0));
  EXPECT_EQ(L"", text(L"DWGNAME"));
}
