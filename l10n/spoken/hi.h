// What is spoken, in Hindi. A quantity has a form for each number of the language: singular|plural.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::spoken {

inline constexpr auto hi = std::to_array<Text>({
    {"number.decimalPoint", "."},
    {"unit.degrees.format", "%@ डिग्री|%@ डिग्री"},
    {"unit.centimetres.format", "%@ सेंटीमीटर|%@ सेंटीमीटर"},
    {"unit.metres.format", "%@ मीटर|%@ मीटर"},

    {"say.angle.left.format", "कोण %@ बाएँ।"},
    {"say.angle.right.format", "कोण %@ दाएँ।"},
    {"say.angle.ahead", "एकदम सीधे।"},
    {"say.pitch.format", "ऊँचाई %@।"},
    {"say.power.format", "ताकत 100 में से %@।"},

    {"say.jack.left.format", "जैक %@ दूर, %@ बाईं ओर।"},
    {"say.jack.right.format", "जैक %@ दूर, %@ दाईं ओर।"},
    {"say.jack.ahead.format", "जैक %@ दूर, ठीक सामने।"},
    {"say.jack.none", "कोर्ट पर जैक नहीं है।"},

    {"say.closest.red.format", "सबसे करीब लाल टीम, %@।"},
    {"say.closest.blue.format", "सबसे करीब नीली टीम, %@।"},
    {"say.closest.both.format", "लाल और नीली टीम बराबर दूरी पर, %@।"},
    {"say.red.format", "लाल टीम %@।"},
    {"say.blue.format", "नीली टीम %@।"},
    {"say.ballsLeft.format", "बची गेंदें: लाल टीम %@, नीली टीम %@।"},
    {"say.score.format", "स्कोर: लाल टीम %@, नीली टीम %@।"},

    {"say.rest.short.format", "गेंद रुक गई, जैक से %@ पहले।"},
    {"say.rest.beyond.format", "गेंद रुक गई, जैक से %@ आगे।"},
    {"say.rest.level", "गेंद रुक गई, न जैक से आगे, न पीछे।"},
    {"say.rest.left.format", "जैक से %@ बाएँ।"},
    {"say.rest.right.format", "जैक से %@ दाएँ।"},
    {"say.rest.out", "गेंद बाहर चली गई।"},
});

} // namespace vorbel::L10n::spoken
