#include "plugin/graph/ResourceBracket.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

TEST(ResourceBracket, PushesAndPops) {
  {
    const ResourceBracket outer;
    EXPECT_EQ(acDocManagerPtr()->resourceDepth(), 1u);
    const ResourceBracket inner;
    EXPECT_EQ(acDocManagerPtr()->resourceDepth(), 2u);
  }
  EXPECT_EQ(acDocManagerPtr()->resourceDepth(), 0u);
}

TEST(ResourceBracket, PopsWhenAnExceptionPassesThrough) {
  const auto fail = [] {
    const ResourceBracket bracket;
    throw std::runtime_error("dialog");
  };
  EXPECT_THROW(fail(), std::runtime_error);
  EXPECT_EQ(acDocManagerPtr()->resourceDepth(), 0u);
}

TEST(ModuleResources, AreThereFromAttachToDetach) {
  module::Attach();
  void* const instance = module::InstanceHandle();
  void* const resources = module::ResourceHandle();
  EXPECT_NE(instance, nullptr);
  EXPECT_NE(resources, nullptr);
  module::Attach();
  EXPECT_EQ(module::ResourceHandle(), resources);
  module::Detach();
  module::Detach();
  EXPECT_EQ(module::InstanceHandle(), nullptr);
  EXPECT_EQ(module::ResourceHandle(), nullptr);
  module::Attach();
  EXPECT_EQ(module::InstanceHandle(), instance);
}

TEST(ModuleResources, HaveOneString) {
  EXPECT_EQ(module::LoadString(100), L"ZPPipeManager");
  EXPECT_EQ(module::LoadString(99), L"");
  EXPECT_EQ(module::LoadString(101), L"");
}

} // namespace
