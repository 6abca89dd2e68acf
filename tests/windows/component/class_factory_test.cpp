#include "windows/component/class_factory.h"

#include <gtest/gtest.h>

#include "windows/component/extensibility.h"
#include "windows/component/identifiers.h"

namespace brimwork::windows {
namespace class_factory_test {

using win32::ComPointer;

struct TheClassFactory : ::testing::Test {
  LibraryUses uses;
  ComPointer<ClassFactory> factory = ClassFactory::Make(GetModuleHandleW(nullptr), uses);

  ComPointer<IUnknown> NewObject() {
    ComPointer<IUnknown> object;
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, object.ReceiveAny()), S_OK);
    return object;
  }
};

TEST_F(TheClassFactory, MakesObjectsThatAnswerToTheEditorsInterfaces) {
  const auto object = NewObject();
  EXPECT_TRUE(object.As<IUnknown>(kExtensibilityInterface));
  EXPECT_TRUE(object.As<IDispatch>());
  EXPECT_FALSE(object.As<IUnknown>(IID_IClassFactory));
}

TEST_F(TheClassFactory, MakesAnObjectByAnyOfItsInterfaces) {
  ComPointer<IUnknown> object;
  EXPECT_EQ(factory->CreateInstance(nullptr, kExtensibilityInterface, object.ReceiveAny()), S_OK);
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IStream, object.ReceiveAny()), E_NOINTERFACE);
  EXPECT_FALSE(object);
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(TheClassFactory, DoesNotAggregate) {
  ComPointer<IUnknown> object;
  EXPECT_EQ(factory->CreateInstance(factory.get(), IID_IUnknown, object.ReceiveAny()),
            CLASS_E_NOAGGREGATION);
}

TEST_F(TheClassFactory, AndItsObjectsKeepTheLibrary) {
  EXPECT_FALSE(uses.IsNone());
  auto object = NewObject();
  factory = nullptr;
  EXPECT_FALSE(uses.IsNone());
  object = nullptr;
  EXPECT_TRUE(uses.IsNone());
}

TEST_F(TheClassFactory, KeepsTheLibraryUntilEachLockIsUndone) {
  factory->LockServer(TRUE);
  factory->LockServer(TRUE);
  factory->LockServer(FALSE);
  factory = nullptr;
  EXPECT_FALSE(uses.IsNone());
  factory = ClassFactory::Make(GetModuleHandleW(nullptr), uses);
  factory->LockServer(FALSE);
  EXPECT_EQ(factory->LockServer(FALSE), S_OK);  // one too many is nothing
  factory = nullptr;
  EXPECT_TRUE(uses.IsNone());
}

TEST_F(TheClassFactory, MakesAnObjectThatWantsAnApplication) {
  const auto object = NewObject().As<IExtensibility>(kExtensibilityInterface);
  EXPECT_EQ(object->OnConnection(nullptr, 0, nullptr, nullptr), E_INVALIDARG);
}

TEST_F(TheClassFactory, MakesAnObjectThatTakesCallsBeforeItsConnection) {
  const auto object = NewObject().As<IExtensibility>(kExtensibilityInterface);
  EXPECT_EQ(object->OnStartupComplete(nullptr), S_OK);
  EXPECT_EQ(object->OnAddInsUpdate(nullptr), S_OK);
  EXPECT_EQ(object->OnBeginShutdown(nullptr), S_OK);
  EXPECT_EQ(object->OnDisconnection(0, nullptr), S_OK);
  EXPECT_EQ(object->OnDisconnection(1, nullptr), S_OK);
}

}  // namespace class_factory_test
}  // namespace brimwork::windows
