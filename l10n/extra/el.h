// Further texts in Greek.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::extra {

inline constexpr auto el = std::to_array<Text>({
    {"end.equidistant.format", "Ίση απόσταση! Κόκκινοι +%@, Μπλε +%@."},
    {"hud.tournament.format", "%@ %@/%@ · %@ (%@)"},
    {"about.pages", "Οι σελίδες του παιχνιδιού"},
    {"notice.endedBadly.format", "Την προηγούμενη φορά το παιχνίδι έκλεισε απροσδόκητα. Όσα είναι γνωστά "
                                 "βρίσκονται σε αυτό το αρχείο:\n%@"},

    {"page.boccia.title", "Τι είναι το μπότσια;"},
    {"page.boccia.text", "Το μπότσια είναι άθλημα ακριβείας, παραολυμπιακό από το 1984, που παίζουν σε "
                         "αμαξίδιο αθλητές με βαριές αναπηρίες. Κάθε ομάδα έχει έξι μπάλες, κόκκινες ή μπλε, "
                         "και προσπαθεί να τις φέρει όσο πιο κοντά γίνεται σε μια λευκή μπάλα, το τζακ."},
    {"page.licence", "Άδεια χρήσης"},
});

} // namespace vorbel::L10n::extra
