// What is spoken, in Greek. A quantity has a form for each number of the language: singular|plural.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::spoken {

inline constexpr auto el = std::to_array<Text>({
    {"number.decimalPoint", ","},
    {"unit.degrees.format", "%@ μοίρα|%@ μοίρες"},
    {"unit.centimetres.format", "%@ εκατοστό|%@ εκατοστά"},
    {"unit.metres.format", "%@ μέτρο|%@ μέτρα"},

    {"say.angle.left.format", "Γωνία %@ αριστερά."},
    {"say.angle.right.format", "Γωνία %@ δεξιά."},
    {"say.angle.ahead", "Ευθεία μπροστά."},
    {"say.pitch.format", "Ύψος ρίψης %@."},
    {"say.power.format", "Δύναμη %@ στα 100."},

    {"say.jack.left.format", "Το τζακ απέχει %@, %@ αριστερά."},
    {"say.jack.right.format", "Το τζακ απέχει %@, %@ δεξιά."},
    {"say.jack.ahead.format", "Το τζακ απέχει %@, ευθεία μπροστά."},
    {"say.jack.none", "Δεν υπάρχει τζακ στο γήπεδο."},

    {"say.closest.red.format", "Πιο κοντά οι κόκκινοι, %@."},
    {"say.closest.blue.format", "Πιο κοντά οι μπλε, %@."},
    {"say.closest.both.format", "Κόκκινοι και μπλε στην ίδια απόσταση, %@."},
    {"say.red.format", "Κόκκινοι, %@."},
    {"say.blue.format", "Μπλε, %@."},
    {"say.ballsLeft.format", "Μπάλες που απομένουν: κόκκινοι %@, μπλε %@."},
    {"say.score.format", "Σκορ: κόκκινοι %@, μπλε %@."},

    {"say.rest.short.format", "Η μπάλα σταμάτησε %@ πριν από το τζακ."},
    {"say.rest.beyond.format", "Η μπάλα σταμάτησε %@ πίσω από το τζακ."},
    {"say.rest.level", "Η μπάλα σταμάτησε στο ύψος του τζακ."},
    {"say.rest.left.format", "%@ αριστερά από το τζακ."},
    {"say.rest.right.format", "%@ δεξιά από το τζακ."},
    {"say.rest.out", "Η μπάλα βγήκε έξω."},
});

} // namespace vorbel::L10n::spoken
