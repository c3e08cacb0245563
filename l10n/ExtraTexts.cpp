#include "l10n/extra/Languages.h"
#include "l10n/options/Languages.h"
#include "l10n/spoken/Languages.h"

namespace vorbel::L10n {

namespace {

// What a language adds to the texts of the game, as its three files list it.
struct AddedTexts {
    AppLanguage language;
    std::span<const Text> pages;
    std::span<const Text> options;
    std::span<const Text> spoken;
};

constexpr auto languages = std::to_array<AddedTexts>({
    {AppLanguage::ru, extra::ru, options::ru, spoken::ru},
    {AppLanguage::en, extra::en, options::en, spoken::en},
    {AppLanguage::es, extra::es, options::es, spoken::es},
    {AppLanguage::fr, extra::fr, options::fr, spoken::fr},
    {AppLanguage::de, extra::de, options::de, spoken::de},
    {AppLanguage::it, extra::it, options::it, spoken::it},
    {AppLanguage::pt, extra::pt, options::pt, spoken::pt},
    {AppLanguage::zh, extra::zh, options::zh, spoken::zh},
    {AppLanguage::ja, extra::ja, options::ja, spoken::ja},
    {AppLanguage::ko, extra::ko, options::ko, spoken::ko},
    {AppLanguage::ar, extra::ar, options::ar, spoken::ar},
    {AppLanguage::hi, extra::hi, options::hi, spoken::hi},
    {AppLanguage::tr, extra::tr, options::tr, spoken::tr},
    {AppLanguage::pl, extra::pl, options::pl, spoken::pl},
    {AppLanguage::nl, extra::nl, options::nl, spoken::nl},
    {AppLanguage::uk, extra::uk, options::uk, spoken::uk},
    {AppLanguage::vi, extra::vi, options::vi, spoken::vi},
    {AppLanguage::th, extra::th, options::th, spoken::th},
    {AppLanguage::id, extra::id, options::id, spoken::id},
    {AppLanguage::el, extra::el, options::el, spoken::el},
});
static_assert(languages.size() == languageCount); // and none is listed twice, or another would lack its texts

consteval Table<extraKeys.size()> joinedTable() {
    Table<extraKeys.size()> table{};
    for (const AddedTexts& added : languages) {
        table[static_cast<std::size_t>(added.language)] =
            joined(columnOf(pageKeys, added.pages), columnOf(optionKeys, added.options),
                   columnOf(spokenKeys, added.spoken));
    }
    return table;
}

} // namespace

constexpr Table<extraKeys.size()> extraTable = complete(joinedTable());

} // namespace vorbel::L10n
