#include "platform/random/Uuid.h"

#include <gtest/gtest.h>

#include <regex>
#include <set>

namespace vorbel {

TEST(UuidTest, EachIsFreshAndUpperCase) {
    SeededRandom random(1);
    const std::regex form("[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}");
    std::set<std::string> seen;
    for (int i = 0; i < 100; ++i) {
        const std::string uuid = randomUuid(random);
        EXPECT_TRUE(std::regex_match(uuid, form)) << uuid;
        seen.insert(uuid);
    }
    EXPECT_EQ(seen.size(), 100U);
}

} // namespace vorbel
