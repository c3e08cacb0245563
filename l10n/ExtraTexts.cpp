#include "l10n/extra/Languages.h"
#include "l10n/options/Languages.h"
#include "l10n/spoken/Languages.h"

namespace vorbel::L10n {

namespace {

consteval Table<extraKeys.size()> joinedTable() {
    Table<extraKeys.size()> table{};
    for (std::size_t row = 0; row < table.size(); ++row) {
        table[row] = joined(extra::table[row], options::table[row], spoken::table[row]);
    }
    return table;
}

} // namespace

constexpr Table<extraKeys.size()> extraTable = complete(joinedTable());

} // namespace vorbel::L10n
