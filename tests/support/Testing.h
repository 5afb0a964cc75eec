// What the tests need of the test library.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace kestrel {

namespace fs = std::filesystem;

using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::MatchesRegex;
using testing::Not;
using testing::Pair;
using testing::SizeIs;
using testing::StartsWith;
using testing::ThrowsMessage;
using testing::UnorderedElementsAre;

}  // namespace kestrel
