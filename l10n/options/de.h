// The options in German.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::options {

inline constexpr auto de = std::to_array<Text>({
    {"menu.options", "Optionen"},

    {"options.throw", "Werfen"},
    {"options.powerPace", "Tempo der Wurfstärke"},
    {"options.powerPace.help", "Die Wurfstärke pendelt vor dem Wurf langsamer oder wird mit den Pfeiltasten "
                               "eingestellt."},
    {"options.asUsual", "Normal"},
    {"options.byKeys", "Mit Tasten"},
    {"options.fineAim", "Fein zielen, zurücknehmen"},
    {"options.fineAim.help", "Umschalttaste und Pfeiltasten zielen in kleinen Schritten. Die [Rücktaste] "
                             "nimmt erst die Wurfstärke zurück, dann die Zielrichtung."},

    {"options.oneSwitch", "Ein Taster"},
    {"options.switchOn", "Mit einem Taster spielen"},
    {"options.switchOn.help", "Was zur Wahl steht, kommt von selbst an die Reihe; eine Taste, ein Klick "
                              "oder ein Knopf wählt es aus."},
    {"options.switchPace", "Zeit pro Auswahl"},
    {"options.switchPace.help", "Wie lange jede Auswahl auf dich wartet."},
    {"options.switchAsks", "Vor dem Wurf nachfragen"},
    {"options.switchAsks.help", "Vor dem Abwurf kannst du noch einmal neu zielen."},
    {"options.switchRest", "Pause nach dem Drücken"},
    {"options.switchRest.help", "Drückst du in dieser Zeit noch einmal, zählt es nicht."},
    {"options.switchKey", "Weitere Taste"},
    {"options.switchKey.help", "Noch eine Taste, die als Taster dient: erst hier auswählen, dann die Taste "
                               "drücken."},
    {"options.pressKey", "Taste drücken …"},
    {"options.none", "Keine"},
    {"options.seconds.format", "%@ s"},

    {"options.devices", "Maus und Controller"},
    {"options.courtButtons", "Knöpfe auf dem Spielfeld"},
    {"options.courtButtons.help", "Große Knöpfe am Spielfeldrand zum Zielen, Werfen und Zurücknehmen."},
    {"options.controller", "Controller"},
    {"options.controller.help", "Mit Gamepads und Taster-Adaptern zielen, werfen und auswählen."},

    {"options.voice", "Ansagen und Töne"},
    {"options.speech", "Ansagen"},
    {"options.speech.help", "Angesagt werden Meldungen, Zielrichtung und Lage der Bälle. Die Taste [W] "
                            "wiederholt die Ansage."},
    {"aim.everything", "Lage ansagen"},
    {"options.tones", "Töne beim Zielen"},
    {"options.tones.help", "Ein Ton steigt mit der Wurfstärke und wandert mit dem Winkel von links nach "
                           "rechts."},
    {"options.hitPlaces", "Treffer in Stereo"},
    {"options.hitPlaces.help",
     "Ein Treffer ist auf der Seite des Spielfelds zu hören, auf der er geschieht."},

    {"options.sight", "Sehen"},
    {"options.textSize", "Schriftgröße"},
    {"options.textSize.help", "Wie groß alle Texte sind."},
    {"options.ballMarks", "Zeichen auf den Bällen"},
    {"options.ballMarks.help", "Rote Bälle tragen Ringe, blaue Bälle Kreuze."},
    {"options.ballOutlines", "Umrandete Bälle"},
    {"options.ballOutlines.help", "Eine Linie um jeden Ball hebt ihn vom Spielfeld ab."},
    {"options.clearPointer", "Weißer Zielstrahl"},
    {"options.clearPointer.help", "Der Zielstrahl ist weiß mit schwarzem Rand."},
    {"options.solidPanels", "Deckende Anzeigen"},
    {"options.solidPanels.help", "Durch die Anzeigen scheint nichts hindurch."},

    {"options.sound", "Ton"},
    {"options.mute", "Ton aus"},
    {"options.mute.help", "Schaltet alle Geräusche aus, genau wie die Taste [M]."},
    {"options.crowdVolume", "Lautstärke des Publikums"},
    {"options.crowdVolume.help", "Wie laut die Zuschauer sind."},
    {"options.effectVolume", "Lautstärke des Spiels"},
    {"options.effectVolume.help", "Wie laut Würfe, Treffer und Ergebnisse klingen."},
    {"options.soundNotes", "Geräusche anzeigen"},
    {"options.soundNotes.help", "Was zu hören ist, steht auch als Text da."},

    {"options.rest", "Pause und Sicherheit"},
    {"options.menuPauses", "Menü hält das Spiel an"},
    {"options.menuPauses.help", "Solange ein Menü offen ist, wartet das Spiel."},
    {"options.askToLeave", "Vor dem Beenden fragen"},
    {"options.askToLeave.help", "Schließt du mitten im Spiel das Fenster, wird erst nachgefragt."},

    {"leave.question", "Das Spiel ist noch nicht zu Ende. Trotzdem beenden?"},
    {"leave.leave", "Beenden"},
    {"leave.cancel", "Weiterspielen"},

    {"aim.left", "Links"},
    {"aim.right", "Rechts"},
    {"aim.up", "Hoch"},
    {"aim.down", "Runter"},
    {"aim.ok", "OK"},
    {"aim.takeBack", "Zurücknehmen"},
    {"aim.powerByKeys", "Mit [↑][↓] Wurfstärke einstellen. [LEERTASTE] zum Werfen"},

    {"switch.begin", "Drücke, um zu zielen"},
    {"switch.angle", "Drücke, wenn die Richtung stimmt"},
    {"switch.pitch", "Drücke, wenn die Höhe stimmt"},
    {"switch.power", "Drücke, wenn die Wurfstärke stimmt"},
    {"switch.throw", "Drücke, um zu werfen"},
    {"switch.again", "Drücke, um neu zu zielen"},
    {"switch.goOn", "Drücke, um weiterzumachen"},
    {"switch.resting", "Drücke, damit die Auswahl weiterläuft"},

    {"key.space", "Leertaste"},

    {"controls.title", "Tasten und Knöpfe"},
    {"controls.help",
     "Wähle + und drücke eine Taste oder einen Knopf, bis zu drei pro Aktion. Was du auswählst, fällt weg."},
    {"controls.keyboard", "Tastatur"},
    {"controls.accept", "Zielen, werfen, OK"},
    {"controls.everything", "Wo alles liegt"},
    {"controls.addKey", "Taste hinzufügen"},
    {"controls.addButton", "Knopf hinzufügen"},
    {"controls.pressButton", "Knopf drücken …"},
    {"controls.moved.format", "%@ ist jetzt für „%@“ da, nicht mehr für „%@“."},
    {"controls.needed.format", "%@ bleibt: „%@“ hat sonst nichts."},
    {"controls.reserved.format", "%@ gehört zu den Menüs."},
    {"controls.reset", "Übliche Belegung"},
    {"button.cross", "Kreuz"},
    {"button.circle", "Kreis"},
    {"button.square", "Quadrat"},
    {"button.triangle", "Dreieck"},
    {"button.number.format", "Knopf %@"},

    {"sound.throw", "Wurf"},
    {"sound.hit", "Ball trifft Ball"},
    {"sound.victory", "Jubel"},
});

} // namespace vorbel::L10n::options
