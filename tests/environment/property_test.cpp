#include "environment/property.h"

#include <gtest/gtest.h>

#include <vector>

#include "environment/text.h"

namespace brimwork {
namespace property_test {

struct Owner : PropertyOwner {
  void Changed(PropertyId property) override { changes.push_back(property); }

  std::vector<PropertyId> changes;
  Property<int> Left{*this, PropertyId::kPlace, 3};
  Property<int> Top{*this, PropertyId::kPlace};
  TextProperty Caption{*this, PropertyId::kCaption};
  TextProperty Tag{*this, PropertyId::kTag};
};

TEST(Property, IsReadAndSetLikeAPlainValue) {
  Owner owner;
  owner.Top = owner.Left + 4;
  EXPECT_EQ(owner.Left, 3);
  EXPECT_EQ(owner.Top, 7);
}

TEST(Property, TellsItsOwnerOfEachChange) {
  Owner owner;
  owner.Left = 4;
  owner.Caption = "Setup";
  EXPECT_EQ(owner.changes, (std::vector{PropertyId::kPlace, PropertyId::kCaption}));
}

TEST(Property, SaysNothingWhenItHasTheValueAlready) {
  Owner owner;
  owner.Left = 3;
  owner.Caption = "";
  EXPECT_TRUE(owner.changes.empty());
}

TEST(Property, IsPresetWithoutAWord) {
  Owner owner;
  owner.Left.Preset(9);
  owner.Caption.Preset("Setup");
  EXPECT_EQ(owner.Left, 9);
  EXPECT_EQ(owner.Caption, "Setup");
  EXPECT_TRUE(owner.changes.empty());
}

TEST(Property, TakesTheValueOfAnotherAndNotItsOwner) {
  Owner owner, other;
  owner.Left = 8;
  other.Left = owner.Left;
  EXPECT_EQ(other.Left, 8);
  EXPECT_EQ(other.changes.size(), 1u);
  EXPECT_EQ(owner.changes.size(), 1u);
}

TEST(TextProperty, GoesWhereverATextGoes) {
  Owner owner;
  owner.Caption = std::string_view(" Setup ");
  owner.Tag = owner.Caption;
  EXPECT_EQ(Trim(owner.Tag), "Setup");
  EXPECT_EQ(owner.Caption.Get() + "!", " Setup !");
  std::string joined = "<";
  joined += owner.Tag;
  EXPECT_EQ(joined, "< Setup ");
  EXPECT_TRUE(owner.Caption == owner.Tag);
  EXPECT_FALSE(owner.Tag.IsEmpty());
}

}  // namespace property_test
}  // namespace brimwork
