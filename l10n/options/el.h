// The options in Greek.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::options {

inline constexpr auto el = std::to_array<Text>({
    {"menu.options", "Επιλογές"},

    {"options.throw", "Ρίψη"},
    {"options.powerPace", "Ρυθμός της δύναμης"},
    {"options.powerPace.help",
     "Πριν από τη ρίψη η δύναμη αλλάζει πιο αργά ή περιμένει να την ορίσετε με τα βέλη."},
    {"options.asUsual", "Όπως συνήθως"},
    {"options.byKeys", "Με τα βέλη"},
    {"options.fineAim", "Ακριβής στόχευση, αναίρεση"},
    {"options.fineAim.help",
     "Με Shift τα βέλη σημαδεύουν με μικρά βήματα. Το [Backspace] αναιρεί τη δύναμη, μετά τη στόχευση."},

    {"options.oneSwitch", "Ένα κουμπί"},
    {"options.switchOn", "Παιχνίδι με ένα κουμπί"},
    {"options.switchOn.help",
     "Οι επιλογές εναλλάσσονται μόνες τους· διαλέγετε με ένα πλήκτρο, κουμπί ή κλικ."},
    {"options.switchPace", "Χρόνος για κάθε επιλογή"},
    {"options.switchPace.help", "Πόση ώρα περιμένει κάθε επιλογή το πάτημα."},
    {"options.switchAsks", "Ερώτηση πριν από τη ρίψη"},
    {"options.switchAsks.help", "Πριν φύγει η μπάλα, μπορείτε να σημαδέψετε ξανά."},
    {"options.switchRest", "Παύση μετά το πάτημα"},
    {"options.switchRest.help", "Δεύτερο πάτημα μέσα σε αυτόν τον χρόνο δεν μετράει."},
    {"options.switchKey", "Ένα ακόμη πλήκτρο"},
    {"options.switchKey.help", "Επιπλέον πλήκτρο αντί για το κουμπί: διαλέξτε το εδώ και ύστερα πατήστε το."},
    {"options.pressKey", "Πατήστε ένα πλήκτρο..."},
    {"options.none", "Κανένα"},
    {"options.seconds.format", "%@ δευτ."},

    {"options.devices", "Ποντίκι και χειριστήριο"},
    {"options.courtButtons", "Κουμπιά στο γήπεδο"},
    {"options.courtButtons.help", "Μεγάλα κουμπιά στην άκρη του γηπέδου για στόχευση, ρίψη και αναίρεση."},
    {"options.controller", "Χειριστήριο"},
    {"options.controller.help", "Σημαδεύετε, ρίχνετε και διαλέγετε με χειριστήριο ή εξωτερικούς διακόπτες."},

    {"options.voice", "Φωνή και τόνοι"},
    {"options.speech", "Ομιλία"},
    {"options.speech.help",
     "Ακούτε τα μηνύματα, τη στόχευση και πού βρίσκονται οι μπάλες. Το πλήκτρο [W] τα επαναλαμβάνει."},
    {"aim.everything", "Πού είναι όλα"},
    {"options.tones", "Τόνοι στόχευσης"},
    {"options.tones.help",
     "Ο τόνος ανεβαίνει με τη δύναμη και πηγαίνει από αριστερά προς τα δεξιά με τη γωνία."},
    {"options.hitPlaces", "Στερεοφωνικά χτυπήματα"},
    {"options.hitPlaces.help", "Κάθε χτύπημα ακούγεται από την πλευρά του γηπέδου όπου γίνεται."},

    {"options.sight", "Όραση"},
    {"options.textSize", "Μέγεθος κειμένου"},
    {"options.textSize.help", "Πόσο μεγάλα είναι όλα τα κείμενα."},
    {"options.ballMarks", "Σημάδια στις μπάλες"},
    {"options.ballMarks.help", "Οι κόκκινες μπάλες έχουν δακτυλίους, οι μπλε σταυρούς."},
    {"options.ballOutlines", "Περίγραμμα στις μπάλες"},
    {"options.ballOutlines.help", "Μια γραμμή γύρω από κάθε μπάλα την ξεχωρίζει από το γήπεδο."},
    {"options.clearPointer", "Λευκός δείκτης"},
    {"options.clearPointer.help", "Ο δείκτης στόχευσης είναι λευκός με μαύρο περίγραμμα."},
    {"options.solidPanels", "Αδιαφανή πλαίσια"},
    {"options.solidPanels.help", "Τίποτα δεν φαίνεται μέσα από τα πλαίσια της οθόνης."},

    {"options.sound", "Ήχος"},
    {"options.mute", "Χωρίς ήχο"},
    {"options.mute.help", "Κλείνει όλους τους ήχους. Το ίδιο κάνει το πλήκτρο [M]."},
    {"options.crowdVolume", "Ένταση των θεατών"},
    {"options.crowdVolume.help", "Πόσο δυνατά ακούγονται οι θεατές."},
    {"options.effectVolume", "Ένταση του παιχνιδιού"},
    {"options.effectVolume.help", "Πόσο δυνατά ακούγονται οι ρίψεις, τα χτυπήματα και τα αποτελέσματα."},
    {"options.soundNotes", "Εμφάνιση ήχων"},
    {"options.soundNotes.help", "Κάθε ήχος που ακούγεται εμφανίζεται και γραπτά."},

    {"options.rest", "Παύση και ασφάλεια"},
    {"options.menuPauses", "Το μενού σταματά τον αγώνα"},
    {"options.menuPauses.help", "Όσο είναι ανοιχτό ένα μενού, ο αγώνας περιμένει."},
    {"options.askToLeave", "Ερώτηση πριν από την έξοδο"},
    {"options.askToLeave.help", "Αν κλείσετε το παράθυρο στη διάρκεια ενός αγώνα, το παιχνίδι ρωτά πρώτα."},

    {"leave.question", "Ο αγώνας δεν τελείωσε ακόμη. Θέλετε σίγουρα να βγείτε;"},
    {"leave.leave", "Έξοδος"},
    {"leave.cancel", "Άκυρο"},

    {"aim.left", "Αριστερά"},
    {"aim.right", "Δεξιά"},
    {"aim.up", "Πάνω"},
    {"aim.down", "Κάτω"},
    {"aim.ok", "Εντάξει"},
    {"aim.takeBack", "Αναίρεση"},
    {"aim.powerByKeys", "[↑][↓] για τη δύναμη. [ΔΙΑΣΤΗΜΑ] για ρίψη"},

    {"switch.begin", "Πατήστε για να σημαδέψετε"},
    {"switch.angle", "Πατήστε όταν η κατεύθυνση είναι σωστή"},
    {"switch.pitch", "Πατήστε όταν το ύψος είναι σωστό"},
    {"switch.power", "Πατήστε όταν η δύναμη είναι σωστή"},
    {"switch.throw", "Πατήστε για ρίψη"},
    {"switch.again", "Πατήστε για να σημαδέψετε ξανά"},
    {"switch.goOn", "Πατήστε για να συνεχίσετε"},
    {"switch.resting", "Πατήστε για να ξαναρχίσει η επιλογή"},

    {"key.space", "Διάστημα"},

    {"controls.title", "Πλήκτρα και κουμπιά"},
    {"controls.help", "Διαλέξτε + και πατήστε ένα πλήκτρο ή κουμπί: έως τρία για κάθε ενέργεια. Για να "
                      "αφαιρέσετε ένα, διαλέξτε το."},
    {"controls.keyboard", "Πληκτρολόγιο"},
    {"controls.accept", "Στόχευση, ρίψη, εντάξει"},
    {"controls.everything", "Πού βρίσκονται όλα"},
    {"controls.addKey", "Προσθήκη πλήκτρου"},
    {"controls.addButton", "Προσθήκη κουμπιού"},
    {"controls.pressButton", "Πατήστε ένα κουμπί..."},
    {"controls.moved.format", "%@: τώρα για «%@», όχι πια για «%@»."},
    {"controls.needed.format", "%@: μένει, γιατί το «%@» δεν έχει άλλο."},
    {"controls.reserved.format", "%@: χρειάζεται στα μενού."},
    {"controls.reset", "Επαναφορά πλήκτρων"},
    {"button.cross", "Σταυρός"},
    {"button.circle", "Κύκλος"},
    {"button.square", "Τετράγωνο"},
    {"button.triangle", "Τρίγωνο"},
    {"button.number.format", "Κουμπί %@"},

    {"sound.throw", "Ρίψη"},
    {"sound.hit", "Μπάλα χτυπά μπάλα"},
    {"sound.victory", "Ζητωκραυγές"},
});

} // namespace vorbel::L10n::options
