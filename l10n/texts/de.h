// German texts.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::texts {

inline constexpr auto de = std::to_array<Text>({
    {"team.red", "Rot"},
    {"team.blue", "Blau"},
    {"team.red.caps", "ROT"},
    {"team.blue.caps", "BLAU"},

    {"label.score", "Punkte:"},
    {"label.ballsLeft", "Bälle:"},
    {"label.end", "End"},

    {"menu.matchResult", "Spielergebnis"},
    {"menu.nextRound", "Nächste Runde"},
    {"menu.mainMenu", "Hauptmenü"},

    {"label.end.format", "End %@ von 4"},
    {"label.playingAs.format", "Team: %@ · Klasse %@"},
    {"label.rampHint", "Rampe: Ball bleibt am Boden, [↑][↓] ohne Funktion"},
    {"label.aiDifficulty", "KI-Stärke"},
    {"label.throwPower", "Wurfstärke"},
    {"label.aiToggle", "KI"},

    {"difficulty.easy", "Leicht"},
    {"difficulty.medium", "Mittel"},
    {"difficulty.hard", "Schwer"},
    {"difficulty.ultra", "Ultra"},

    {"menu.language", "Sprache"},
    {"menu.gameMenu", "Spiel"},
    {"menu.toggleFullScreen", "Vollbild ein/aus"},
    {"menu.rank.format", "Rang: %@"},
    {"menu.gamesNext.format", "Spiele bisher: %@ · bis zum nächsten Rang: %@"},
    {"menu.gamesMax.format", "Spiele bisher: %@ · höchster Rang erreicht"},
    {"menu.startGame", "Spiel starten"},
    {"menu.tournament", "Turnier"},
    {"menu.rules", "Regeln"},
    {"menu.about", "Über das Spiel"},
    {"menu.exit", "Beenden"},
    {"menu.chooseCountry", "Für welches Land spielst du?"},
    {"menu.play", "Spielen"},
    {"menu.sportClass", "Startklasse"},
    {"menu.back", "Zurück"},
    {"menu.isRealAthlete", "Ich bin auch im echten Leben Sportler/-in"},
    {"menu.diary", "Sporttagebuch"},

    {"diary.totalXP.format", "Erfahrung (XP): %@"},
    {"diary.empty", "Noch keine Einträge. Zeit für ein Spiel!"},
    {"diary.win", "Sieg"},
    {"diary.loss", "Niederlage"},
    {"diary.draw", "Unentschieden"},
    {"diary.entry.format", "%@ (+%@ XP)"},

    {"bc.desc.bc1",
     "Zerebralparese, Wurf mit Hand oder Fuß. Eine Assistenz ist erlaubt – nur um den Rollstuhl zu stabilisieren und den Ball anzureichen."},
    {"bc.desc.bc2", "Zerebralparese, höheres Funktionsniveau als BC1. Keine Assistenz erlaubt."},
    {"bc.desc.bc3",
     "Schwerste Beeinträchtigungen (jede Diagnose), Wurf über eine Rampe (Rinne) mit Unterstützung einer Assistenz auf dem Spielfeld."},
    {"bc.desc.bc4",
     "Schwere motorische Beeinträchtigungen, die nicht auf einer Zerebralparese beruhen (etwa Muskeldystrophie). Keine Rampe und keine Assistenz."},

    {"rank.novice", "Neuling"},
    {"rank.thirdYouth", "3. Jugendklasse"},
    {"rank.secondYouth", "2. Jugendklasse"},
    {"rank.firstYouth", "1. Jugendklasse"},
    {"rank.thirdRank", "3. Leistungsklasse"},
    {"rank.secondRank", "2. Leistungsklasse"},
    {"rank.firstRank", "1. Leistungsklasse"},
    {"rank.cms", "Meisteranwärter"},
    {"rank.ms", "Meister des Sports"},

    {"msg.initial", "Drücke [LEERTASTE], um zu zielen"},
    {"msg.aimingHint", "Mit [←][→] und [↑][↓] zielen. [LEERTASTE] – OK."},
    {"msg.lockPower", "[LEERTASTE] Wurfstärke festlegen"},
    {"msg.ballInPlay", "Ball im Spiel …"},
    {"msg.turn.format", "%@ ist dran. [LEERTASTE] zum Zielen"},
    {"msg.endWon.format", "%@ gewinnt das End! Punkte: %@."},
    {"msg.endDraw", "Gleichstand in diesem End!"},
    {"msg.matchDraw", "Das Spiel endet unentschieden!"},
    {"msg.teamWinMatch.format", "%@ gewinnt das Spiel!"},
    {"msg.matchOver.format", "%@ Endstand %@:%@. [LEERTASTE] für ein neues Spiel"},
    {"msg.nextEndPrompt.format", "%@ [LEERTASTE] für das nächste End"},
    {"msg.newEndStart.format", "End %@ beginnt. %@ ist dran. [LEERTASTE] zum Zielen"},
    {"msg.jackOut.format", "Der Jackball ist im Aus! Der Wurf geht an %@. [LEERTASTE] zum Zielen"},
    {"msg.tieBreak.format",
     "Gleichstand! Zusatz-End %@: Der Jackball liegt in der Mitte. %@ ist dran. [LEERTASTE] zum Zielen"},
    {"msg.aiAiming.format", "KI (%@) zielt …"},
    {"msg.tournamentRound.format", "Turnier, Runde %@ von %@! Gegner: %@ (%@). [LEERTASTE] zum Zielen"},
    {"msg.tournamentEliminated.format",
     "Turnier beendet: ausgeschieden in Runde %@ von %@. [LEERTASTE] für ein neues Spiel"},
    {"msg.tournamentChampion.format",
     "TURNIERSIEG! Du hast alle %@ Runden gewonnen! [LEERTASTE] für ein neues Spiel"},

    {"country.france", "Frankreich"},
    {"country.germany", "Deutschland"},
    {"country.thailand", "Thailand"},
    {"country.brazil", "Brasilien"},
    {"country.japan", "Japan"},
    {"country.southKorea", "Südkorea"},
    {"country.greatBritain", "Großbritannien"},
    {"country.portugal", "Portugal"},
    {"country.china", "China"},
    {"country.belgium", "Belgien"},
    {"country.croatia", "Kroatien"},
    {"country.czechRepublic", "Tschechien"},
    {"country.greece", "Griechenland"},
    {"country.hungary", "Ungarn"},
    {"country.netherlands", "Niederlande"},
    {"country.poland", "Polen"},
    {"country.slovakia", "Slowakei"},
    {"country.spain", "Spanien"},
    {"country.ukraine", "Ukraine"},
    {"country.hongKong", "Hongkong"},
    {"country.indonesia", "Indonesien"},
    {"country.malaysia", "Malaysia"},
    {"country.singapore", "Singapur"},
    {"country.israel", "Israel"},
    {"country.argentina", "Argentinien"},
    {"country.bermuda", "Bermuda"},
    {"country.canada", "Kanada"},
    {"country.colombia", "Kolumbien"},
    {"country.ecuador", "Ecuador"},
    {"country.elSalvador", "El Salvador"},
    {"country.mexico", "Mexiko"},
    {"country.peru", "Peru"},
    {"country.egypt", "Ägypten"},
    {"country.southAfrica", "Südafrika"},
    {"country.tunisia", "Tunesien"},
    {"country.australia", "Australien"},
    {"country.russia", "Russland"},

    {"rules.text",
     "Ziel ist es, die farbigen Bälle so nah wie möglich an den weißen Ball (den Jackball) zu werfen.\n"
     "\n"
     "1. Zuerst wird bestimmt, wer das End (den Durchgang) beginnt: Dieses Team wirft den weißen Jackball und dann seinen ersten farbigen Ball.\n"
     "2. Als Nächstes wirft das Team, dessen Ball dem Jackball gerade NICHT am nächsten liegt.\n"
     "3. Jedes Team hat 6 Bälle pro End.\n"
     "4. Sind alle Bälle geworfen, ist das End vorbei: Das Team, dessen Bälle näher am Jackball liegen als der beste Ball des Gegners, erhält für jeden näher liegenden Ball einen Punkt.\n"
     "5. Ein Spiel hat 4 Ends. Steht es danach unentschieden, folgt ein Zusatz-End, und der Jackball wird nicht geworfen, sondern vom Schiedsrichter in die Mitte gelegt.\n"
     "\n"
     "Steuerung:\n"
     "[LEERTASTE] – Zielen beginnen / Winkel festlegen / werfen.\n"
     "[←] [→] [↑] [↓] – Richtung und Höhe des Wurfs."},

    {"about.text",
     "VORBEL\n"
     "\n"
     "Entwickelt vom VORBEL-Team.\n"
     "Ein 3D-Boccia-Spiel, entstanden mit Qt, OpenGL, Bullet und SDL.\n"
     "\n"
     "Ebenfalls vom VORBEL-Team:\n"
     "· vorbel-sim – der Spielsimulator: Computergegner tragen ganze Spiele aus, ohne Grafik\n"
     "· der Quellcode von VORBEL – zum Lesen geschrieben, für alle, die gern sehen, wie es funktioniert"},
});

} // namespace vorbel::L10n::texts
