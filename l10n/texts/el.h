// Greek texts.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::texts {

inline constexpr auto el = std::to_array<Text>({
    {"team.red", "Κόκκινοι"},
    {"team.blue", "Μπλε"},
    {"team.red.caps", "ΚΟΚΚΙΝΟΙ"},
    {"team.blue.caps", "ΜΠΛΕ"},

    {"label.score", "Σκορ:"},
    {"label.ballsLeft", "Μπάλες:"},
    {"label.end", "Σετ"},

    {"menu.matchResult", "Αποτέλεσμα αγώνα"},
    {"menu.nextRound", "Επόμενος γύρος"},
    {"menu.mainMenu", "Κεντρικό μενού"},

    {"label.end.format", "Σετ %@ από 4"},
    {"label.playingAs.format", "Χώρα: %@ · Κατηγορία %@"},
    {"label.rampHint", "Ράμπα: η μπάλα κυλά στο έδαφος, [↑][↓] ανενεργά"},
    {"label.aiDifficulty", "Δυσκολία ΤΝ"},
    {"label.throwPower", "Δύναμη ρίψης"},
    {"label.aiToggle", "ΤΝ"},

    {"difficulty.easy", "Εύκολο"},
    {"difficulty.medium", "Μέτριο"},
    {"difficulty.hard", "Δύσκολο"},
    {"difficulty.ultra", "Ακραίο"},

    {"menu.language", "Γλώσσα"},
    {"menu.gameMenu", "Παιχνίδι"},
    {"menu.toggleFullScreen", "Εναλλαγή πλήρους οθόνης"},
    {"menu.rank.format", "Βαθμίδα: %@"},
    {"menu.gamesNext.format", "Αγώνες: %@ · ως την επόμενη βαθμίδα: %@"},
    {"menu.gamesMax.format", "Αγώνες: %@ · ανώτατη βαθμίδα"},
    {"menu.startGame", "Έναρξη παιχνιδιού"},
    {"menu.tournament", "Τουρνουά"},
    {"menu.rules", "Κανόνες"},
    {"menu.about", "Σχετικά"},
    {"menu.exit", "Έξοδος"},
    {"menu.chooseCountry", "Για ποια χώρα παίζετε;"},
    {"menu.play", "Παίξτε"},
    {"menu.sportClass", "Αγωνιστική κατηγορία"},
    {"menu.back", "Πίσω"},
    {"menu.isRealAthlete", "Αθλητής/τρια και στη ζωή"},
    {"menu.diary", "Ημερολόγιο αθλητή"},

    {"diary.totalXP.format", "Εμπειρία (XP): %@"},
    {"diary.empty", "Καμία καταχώριση ακόμη. Παίξτε έναν αγώνα!"},
    {"diary.win", "Νίκη"},
    {"diary.loss", "Ήττα"},
    {"diary.draw", "Ισοπαλία"},
    {"diary.entry.format", "%@ (+%@ XP)"},

    {"bc.desc.bc1",
     "Εγκεφαλική παράλυση, ρίψη με χέρι ή πόδι. Επιτρέπεται βοηθός — μόνο για να σταθεροποιεί το αμαξίδιο και να δίνει την μπάλα."},
    {"bc.desc.bc2",
     "Εγκεφαλική παράλυση, υψηλότερο λειτουργικό επίπεδο από την BC1. Δεν επιτρέπεται βοηθός."},
    {"bc.desc.bc3",
     "Οι βαρύτερες αναπηρίες (οποιαδήποτε διάγνωση), ρίψη με ράμπα (κανάλι κύλισης) και υποστήριξη βοηθού στο γήπεδο."},
    {"bc.desc.bc4",
     "Σοβαρές κινητικές αναπηρίες που δεν οφείλονται σε εγκεφαλική παράλυση (π.χ. μυϊκή δυστροφία). Χωρίς ράμπα και χωρίς βοηθό."},

    {"rank.novice", "Αρχάριος"},
    {"rank.thirdYouth", "3η Κατηγορία Νέων"},
    {"rank.secondYouth", "2η Κατηγορία Νέων"},
    {"rank.firstYouth", "1η Κατηγορία Νέων"},
    {"rank.thirdRank", "3η Κατηγορία"},
    {"rank.secondRank", "2η Κατηγορία"},
    {"rank.firstRank", "1η Κατηγορία"},
    {"rank.cms", "Υποψήφιος Μετρ του Αθλητισμού"},
    {"rank.ms", "Μετρ του Αθλητισμού"},

    {"msg.initial", "Πατήστε [ΔΙΑΣΤΗΜΑ] για να σημαδέψετε"},
    {"msg.aimingHint", "Σημαδέψτε με τα βέλη [←][→] και [↑][↓]. [ΔΙΑΣΤΗΜΑ] — εντάξει."},
    {"msg.lockPower", "[ΔΙΑΣΤΗΜΑ] Κλείδωμα δύναμης ρίψης"},
    {"msg.ballInPlay", "Μπάλα σε κίνηση..."},
    {"msg.turn.format", "Παίζουν οι %@. [ΔΙΑΣΤΗΜΑ] για στόχευση"},
    {"msg.endWon.format", "Οι %@ κερδίζουν το σετ! Πόντοι: %@."},
    {"msg.endDraw", "Ισοπαλία στο σετ!"},
    {"msg.matchDraw", "Ισοπαλία στον αγώνα!"},
    {"msg.teamWinMatch.format", "Οι %@ κερδίζουν τον αγώνα!"},
    {"msg.matchOver.format", "%@ Σκορ %@-%@. [ΔΙΑΣΤΗΜΑ] για νέο παιχνίδι"},
    {"msg.nextEndPrompt.format", "%@ [ΔΙΑΣΤΗΜΑ] για το επόμενο σετ"},
    {"msg.newEndStart.format", "Το σετ %@ ξεκίνησε. Παίζουν οι %@. [ΔΙΑΣΤΗΜΑ] για στόχευση"},
    {"msg.jackOut.format", "Το τζακ βγήκε έξω! Παίζουν τώρα οι %@. [ΔΙΑΣΤΗΜΑ] για στόχευση"},
    {"msg.tieBreak.format",
     "Ισοπαλία στον αγώνα! Έξτρα σετ %@: το τζακ μπαίνει στο κέντρο. Παίζουν οι %@. [ΔΙΑΣΤΗΜΑ] για στόχευση"},
    {"msg.aiAiming.format", "Η ΤΝ (%@) σημαδεύει..."},
    {"msg.tournamentRound.format", "Τουρνουά, γύρος %@ από %@! Αντίπαλος: %@ (%@). [ΔΙΑΣΤΗΜΑ] για στόχευση"},
    {"msg.tournamentEliminated.format",
     "Τέλος τουρνουά: αποκλεισμός στον γύρο %@ από %@. [ΔΙΑΣΤΗΜΑ] για νέο παιχνίδι"},
    {"msg.tournamentChampion.format",
     "ΚΑΤΑΚΤΗΣΑΤΕ ΤΟ ΤΟΥΡΝΟΥΑ! Κερδίσατε και τους %@ γύρους! [ΔΙΑΣΤΗΜΑ] για νέο παιχνίδι"},

    {"country.france", "Γαλλία"},
    {"country.germany", "Γερμανία"},
    {"country.thailand", "Ταϊλάνδη"},
    {"country.brazil", "Βραζιλία"},
    {"country.japan", "Ιαπωνία"},
    {"country.southKorea", "Νότια Κορέα"},
    {"country.greatBritain", "Μεγάλη Βρετανία"},
    {"country.portugal", "Πορτογαλία"},
    {"country.china", "Κίνα"},
    {"country.belgium", "Βέλγιο"},
    {"country.croatia", "Κροατία"},
    {"country.czechRepublic", "Τσεχία"},
    {"country.greece", "Ελλάδα"},
    {"country.hungary", "Ουγγαρία"},
    {"country.netherlands", "Ολλανδία"},
    {"country.poland", "Πολωνία"},
    {"country.slovakia", "Σλοβακία"},
    {"country.spain", "Ισπανία"},
    {"country.ukraine", "Ουκρανία"},
    {"country.hongKong", "Χονγκ Κονγκ"},
    {"country.indonesia", "Ινδονησία"},
    {"country.malaysia", "Μαλαισία"},
    {"country.singapore", "Σιγκαπούρη"},
    {"country.israel", "Ισραήλ"},
    {"country.argentina", "Αργεντινή"},
    {"country.bermuda", "Βερμούδες"},
    {"country.canada", "Καναδάς"},
    {"country.colombia", "Κολομβία"},
    {"country.ecuador", "Ισημερινός"},
    {"country.elSalvador", "Ελ Σαλβαδόρ"},
    {"country.mexico", "Μεξικό"},
    {"country.peru", "Περού"},
    {"country.egypt", "Αίγυπτος"},
    {"country.southAfrica", "Νότια Αφρική"},
    {"country.tunisia", "Τυνησία"},
    {"country.australia", "Αυστραλία"},
    {"country.russia", "Ρωσία"},

    {"rules.text",
     "Στόχος είναι να ρίξετε τις χρωματιστές μπάλες όσο πιο κοντά γίνεται στη λευκή μπάλα (το τζακ).\n"
     "\n"
     "1. Πρώτα ορίζεται ποια ομάδα ξεκινά το σετ: ρίχνει το λευκό τζακ και ύστερα την πρώτη χρωματιστή της μπάλα.\n"
     "2. Επόμενη ρίχνει η ομάδα της οποίας η μπάλα ΔΕΝ είναι εκείνη τη στιγμή η πιο κοντινή στο τζακ.\n"
     "3. Κάθε ομάδα έχει 6 μπάλες ανά σετ.\n"
     "4. Όταν ριχτούν όλες οι μπάλες, το σετ τελειώνει: η ομάδα με μπάλες πιο κοντά στο τζακ από την καλύτερη μπάλα του αντιπάλου παίρνει έναν πόντο για καθεμία από αυτές.\n"
     "5. Ο αγώνας έχει 4 σετ. Αν μετά από αυτά το σκορ είναι ισόπαλο, παίζεται έξτρα σετ και το τζακ δεν ρίχνεται: ο διαιτητής το τοποθετεί στο κέντρο.\n"
     "\n"
     "Χειρισμός:\n"
     "[ΔΙΑΣΤΗΜΑ] — έναρξη στόχευσης / κλείδωμα γωνίας / ρίψη.\n"
     "[←] [→] [↑] [↓] — κατεύθυνση και ύψος της ρίψης."},

    {"about.text",
     "VORBEL\n"
     "\n"
     "Δημιουργήθηκε από την ομάδα VORBEL.\n"
     "Ένα τρισδιάστατο παιχνίδι μπότσια, φτιαγμένο με Qt, OpenGL, Bullet και SDL.\n"
     "\n"
     "Επίσης από τους δημιουργούς του VORBEL:\n"
     "· vorbel-sim — ο προσομοιωτής αγώνων: αντίπαλοι του υπολογιστή παίζουν ολόκληρους αγώνες, χωρίς γραφικά\n"
     "· ο πηγαίος κώδικας του VORBEL — γραμμένος για να διαβάζεται, για όσους θέλουν να δουν πώς λειτουργεί"},
});

} // namespace vorbel::L10n::texts
