// Further texts in Arabic.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::extra {

inline constexpr auto ar = std::to_array<Text>({
    {"end.equidistant.format", "كرات على المسافة نفسها! الأحمر \u2066+%@\u2069، الأزرق \u2066+%@\u2069."},
    {"hud.tournament.format", "%@ %@/%@ · %@ (%@)"},
    {"about.pages", "صفحات اللعبة"},
    {"notice.endedBadly.format",
     "توقفت اللعبة بشكل غير متوقع في المرة الماضية. ما يُعرف عن ذلك مسجّل في هذا الملف:\n%@"},

    {"page.boccia.title", "ما البوتشيا؟"},
    {"page.boccia.text", "البوتشيا رياضة تقوم على دقة التصويب، وهي ضمن الألعاب البارالمبية منذ عام 1984، "
                         "ويمارسها على الكراسي المتحركة رياضيون من ذوي الإعاقات الشديدة. لكل فريق ست كرات "
                         "حمراء أو زرقاء يحاول أن يقرّبها قدر الإمكان من كرة بيضاء هي الجاك."},
    {"page.licence", "الترخيص"},
});

} // namespace vorbel::L10n::extra
