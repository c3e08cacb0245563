// The options in Dutch.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::options {

inline constexpr auto nl = std::to_array<Text>({
    {"menu.options", "Opties"},

    {"options.throw", "Werpen"},
    {"options.powerPace", "Tempo van de werpkracht"},
    {"options.powerPace.help",
     "De werpkracht loopt voor de worp trager op en af, of wordt met de pijltjestoetsen ingesteld."},
    {"options.asUsual", "Normaal"},
    {"options.byKeys", "Met toetsen"},
    {"options.fineAim", "Fijn richten en stap terug"},
    {"options.fineAim.help", "Met Shift richten de pijltjestoetsen in kleine stapjes. Backspace zet eerst de "
                             "kracht terug, dan de hoek."},

    {"options.oneSwitch", "Eén schakelaar"},
    {"options.switchOn", "Met één schakelaar spelen"},
    {"options.switchOn.help",
     "De keuzes komen vanzelf om de beurt langs; met één toets, klik of knop kies je."},
    {"options.switchPace", "Tijd per keuze"},
    {"options.switchPace.help", "Hoelang je hebt om een keuze te maken."},
    {"options.switchAsks", "Vragen voor de worp"},
    {"options.switchAsks.help", "Je kunt nog opnieuw richten voordat de bal wordt losgelaten."},
    {"options.switchRest", "Pauze na het drukken"},
    {"options.switchRest.help", "Druk je binnen deze tijd nog een keer, dan telt dat niet."},
    {"options.switchKey", "Extra toets"},
    {"options.switchKey.help", "Nog een toets die als schakelaar werkt: kies dit en druk dan op de toets."},
    {"options.pressKey", "Druk op een toets..."},
    {"options.none", "Geen"},
    {"options.seconds.format", "%@ sec"},

    {"options.devices", "Muis en controller"},
    {"options.courtButtons", "Knoppen op het speelveld"},
    {"options.courtButtons.help",
     "Grote knoppen aan de rand van het veld om te richten, te werpen en een stap terug te gaan."},
    {"options.controller", "Gamecontroller"},
    {"options.controller.help", "Met gamecontrollers en schakelinterfaces kun je richten, werpen en kiezen."},

    {"options.voice", "Stem en tonen"},
    {"options.speech", "Spraak"},
    {"options.speech.help",
     "Meldingen, de richting en de ligging van de ballen worden voorgelezen. Toets W herhaalt ze."},
    {"aim.everything", "Waar alles ligt"},
    {"options.tones", "Tonen bij het richten"},
    {"options.tones.help", "De toon stijgt met de kracht en schuift met de hoek van links naar rechts."},
    {"options.hitPlaces", "Botsingen in stereo"},
    {"options.hitPlaces.help", "Je hoort een botsing aan de kant van het veld waar de ballen elkaar raken."},
    {"options.textSize", "Tekstgrootte"},
    {"options.textSize.help", "Hoe groot alle teksten zijn."},

    {"options.sight", "Beeld"},
    {"options.ballMarks", "Tekens op de ballen"},
    {"options.ballMarks.help", "Rode ballen hebben ringen, blauwe ballen kruisen."},
    {"options.ballOutlines", "Rand om de ballen"},
    {"options.ballOutlines.help", "Door een rand steekt elke bal duidelijk af tegen het veld."},
    {"options.clearPointer", "Witte richtstreep"},
    {"options.clearPointer.help", "De richtstreep is wit met een zwarte rand."},
    {"options.solidPanels", "Dichte panelen"},
    {"options.solidPanels.help", "De panelen op het scherm zijn niet doorzichtig."},

    {"options.sound", "Geluid"},
    {"options.mute", "Geen geluid"},
    {"options.mute.help", "Zet al het geluid uit. Toets M doet hetzelfde."},
    {"options.crowdVolume", "Volume van het publiek"},
    {"options.crowdVolume.help", "Hoe hard je het publiek hoort."},
    {"options.effectVolume", "Volume van het spel"},
    {"options.effectVolume.help", "Hoe hard je worpen, botsingen en uitslagen hoort."},
    {"options.soundNotes", "Geluiden in beeld"},
    {"options.soundNotes.help", "Bij elk geluid staat op het scherm wat je hoort."},

    {"options.rest", "Rust en veiligheid"},
    {"options.menuPauses", "Menu pauzeert de wedstrijd"},
    {"options.menuPauses.help", "Zolang er een menu open is, wacht de wedstrijd."},
    {"options.askToLeave", "Vragen bij het afsluiten"},
    {"options.askToLeave.help", "Wie het venster tijdens een wedstrijd sluit, krijgt eerst een vraag."},

    {"leave.question", "De wedstrijd is nog niet afgelopen. Toch stoppen?"},
    {"leave.leave", "Stoppen"},
    {"leave.cancel", "Annuleren"},

    {"aim.left", "Links"},
    {"aim.right", "Rechts"},
    {"aim.up", "Omhoog"},
    {"aim.down", "Omlaag"},
    {"aim.ok", "OK"},
    {"aim.takeBack", "Stap terug"},
    {"aim.powerByKeys", "[↑][↓] om de kracht in te stellen. [SPATIE] om te werpen"},

    {"switch.begin", "Druk om te richten"},
    {"switch.angle", "Druk als de richting goed is"},
    {"switch.pitch", "Druk als de hoogte goed is"},
    {"switch.power", "Druk als de kracht goed is"},
    {"switch.throw", "Druk om te werpen"},
    {"switch.again", "Druk om opnieuw te richten"},
    {"switch.goOn", "Druk om verder te gaan"},
    {"switch.resting", "Druk om weer te kiezen"},

    {"key.space", "Spatie"},

    {"controls.title", "Toetsen en knoppen"},
    {"controls.help",
     "Kies + en druk op een toets of knop: hooguit drie per actie. Kies er een om die weg te halen."},
    {"controls.keyboard", "Toetsenbord"},
    {"controls.accept", "Richten, werpen, OK"},
    {"controls.everything", "Waar alles ligt"},
    {"controls.addKey", "Toets toevoegen"},
    {"controls.addButton", "Knop toevoegen"},
    {"controls.pressButton", "Druk op een knop..."},
    {"controls.moved.format", "%@ is nu voor ‘%@’, niet meer voor ‘%@’."},
    {"controls.needed.format", "%@ blijft: ‘%@’ heeft niets anders."},
    {"controls.reserved.format", "%@ hoort bij de menu’s."},
    {"controls.reset", "Gewone toetsen herstellen"},
    {"button.cross", "Kruisje"},
    {"button.circle", "Rondje"},
    {"button.square", "Vierkantje"},
    {"button.triangle", "Driehoekje"},
    {"button.number.format", "Knop %@"},

    {"sound.throw", "Worp"},
    {"sound.hit", "Bal raakt bal"},
    {"sound.victory", "Gejuich"},
});

} // namespace vorbel::L10n::options
