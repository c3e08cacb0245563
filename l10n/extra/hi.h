// Further texts in Hindi.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::extra {

inline constexpr auto hi = std::to_array<Text>({
    {"end.equidistant.format", "बराबर दूरी! लाल टीम +%@, नीली टीम +%@।"},
    {"hud.tournament.format", "%@ %@/%@ · %@ (%@)"},
    {"about.pages", "गेम के पेज"},
    {"notice.endedBadly.format", "पिछली बार गेम अचानक बंद हो गया था। इसके बारे में जो पता है, वह इस फ़ाइल में है:\n%@"},

    {"page.boccia.title", "बोचिया क्या है?"},
    {"page.boccia.text",
     "बोचिया सटीक निशाने का खेल है, जो 1984 से पैरालंपिक में शामिल है और जिसे गंभीर अक्षमता वाले खिलाड़ी व्हीलचेयर पर बैठकर "
     "खेलते हैं। हर टीम के पास लाल या नीली छह गेंदें होती हैं, जिन्हें सफ़ेद गेंद यानी जैक के सबसे करीब पहुँचाना होता है।"},
    {"page.licence", "लाइसेंस"},
});

} // namespace vorbel::L10n::extra
