// What every store promises, tried with each.
#include "platform/store/MemoryDefaults.h"
#include "tests/unit/store/SettingsFolder.h"

#include <limits>

namespace vorbel {

namespace {

class InMemory : public testing::Test {
protected:
    MemoryDefaults defaults;
};

class OnDisk : public SettingsFolder {
protected:
    SettingsDefaults defaults{folder};
};

template <typename Store>
class DefaultsTest : public Store {};
using Stores = testing::Types<InMemory, OnDisk>;
TYPED_TEST_SUITE(DefaultsTest, Stores);

TYPED_TEST(DefaultsTest, AKeyThatWasNeverStoredIsAbsent) {
    EXPECT_EQ(this->defaults.integer("boccia_gamesPlayed"), std::nullopt);
    EXPECT_EQ(this->defaults.boolean("boccia_isRealAthlete"), std::nullopt);
    EXPECT_EQ(this->defaults.text("boccia_language"), std::nullopt);
    EXPECT_EQ(this->defaults.bytes("boccia_diaryData"), std::nullopt);
}

TYPED_TEST(DefaultsTest, IntegersAreKeptOverTheirWholeRange) {
    for (const int value : {0, 1, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        this->defaults.setInteger("key", value);
        EXPECT_EQ(this->defaults.integer("key"), value);
    }
}

TYPED_TEST(DefaultsTest, BooleansAreKept) {
    for (const bool value : {true, false}) {
        this->defaults.setBoolean("key", value);
        EXPECT_EQ(this->defaults.boolean("key"), value);
    }
}

TYPED_TEST(DefaultsTest, TextsAreKeptExactly) {
    for (const char* value :
         {"", "ru", "5", "true", "@ByteArray(x)", " two\nlines\r\n", "日本語 العربية 🇫🇷", "a=b;\\x\"%20"}) {
        this->defaults.setText("key", value);
        EXPECT_EQ(this->defaults.text("key"), value);
    }
}

TYPED_TEST(DefaultsTest, BytesAreKeptExactly) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(byte);
    }
    for (const std::string& value : {std::string(), all, std::string(3, '\0')}) {
        this->defaults.setBytes("key", value);
        EXPECT_EQ(this->defaults.bytes("key"), value);
    }
}

TYPED_TEST(DefaultsTest, AValueOfAnotherTypeReadsAsAbsent) {
    this->defaults.setInteger("integer", 1);
    this->defaults.setBoolean("boolean", true);
    this->defaults.setText("text", "1");
    this->defaults.setBytes("bytes", "1");
    for (const char* key : {"boolean", "text", "bytes"}) {
        EXPECT_EQ(this->defaults.integer(key), std::nullopt) << key;
    }
    for (const char* key : {"integer", "text", "bytes"}) {
        EXPECT_EQ(this->defaults.boolean(key), std::nullopt) << key;
    }
    for (const char* key : {"integer", "boolean", "bytes"}) {
        EXPECT_EQ(this->defaults.text(key), std::nullopt) << key;
    }
    for (const char* key : {"integer", "boolean", "text"}) {
        EXPECT_EQ(this->defaults.bytes(key), std::nullopt) << key;
    }
}

TYPED_TEST(DefaultsTest, ANewValueMayHaveAnotherTypeThanTheOld) {
    this->defaults.setText("key", "many");
    this->defaults.setInteger("key", 7);
    EXPECT_EQ(this->defaults.integer("key"), 7);
    EXPECT_EQ(this->defaults.text("key"), std::nullopt);
}

TYPED_TEST(DefaultsTest, KeysMayHoldAnyCharacter) {
    const std::vector<std::string> keys{"a/b", "../up", ".", "..", "наука", "a b", "a%2Fb"};
    for (std::size_t i = 0; i < keys.size(); ++i) {
        this->defaults.setInteger(keys[i], static_cast<int>(i));
    }
    for (std::size_t i = 0; i < keys.size(); ++i) {
        EXPECT_EQ(this->defaults.integer(keys[i]), static_cast<int>(i)) << keys[i];
    }
}

} // namespace

} // namespace vorbel
