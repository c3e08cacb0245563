// The options in Polish.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::options {

inline constexpr auto pl = std::to_array<Text>({
    {"menu.options", "Opcje"},

    {"options.throw", "Rzut"},
    {"options.powerPace", "Tempo paska siły"},
    {"options.powerPace.help",
     "Przed rzutem siła zmienia się wolniej albo czeka, aż ustawisz ją strzałkami."},
    {"options.asUsual", "Jak zwykle"},
    {"options.byKeys", "Strzałkami"},
    {"options.fineAim", "Dokładne celowanie i cofanie"},
    {"options.fineAim.help",
     "Z klawiszem Shift strzałki celują małymi krokami. Backspace cofa siłę, a potem celowanie."},

    {"options.oneSwitch", "Jeden przycisk"},
    {"options.switchOn", "Gra jednym przyciskiem"},
    {"options.switchOn.help",
     "Możliwości zmieniają się same; wybierasz jednym klawiszem, przyciskiem lub kliknięciem."},
    {"options.switchPace", "Czas na każdy wybór"},
    {"options.switchPace.help", "Jak długo każda możliwość czeka na naciśnięcie."},
    {"options.switchAsks", "Pytaj przed rzutem"},
    {"options.switchAsks.help", "Przed rzutem możesz jeszcze wycelować od nowa."},
    {"options.switchRest", "Przerwa po naciśnięciu"},
    {"options.switchRest.help", "Kolejne naciśnięcie w tym czasie się nie liczy."},
    {"options.switchKey", "Dodatkowy klawisz"},
    {"options.switchKey.help",
     "Jeszcze jeden klawisz zamiast przycisku: wybierz tę opcję, a potem go naciśnij."},
    {"options.pressKey", "Naciśnij klawisz…"},
    {"options.none", "Brak"},
    {"options.seconds.format", "%@ s"},

    {"options.devices", "Mysz i kontroler"},
    {"options.courtButtons", "Przyciski na boisku"},
    {"options.courtButtons.help", "Duże przyciski przy krawędzi boiska: celowanie, rzut, cofanie."},
    {"options.controller", "Kontroler"},
    {"options.controller.help",
     "Możesz celować, rzucać i wybierać kontrolerem lub zewnętrznymi przyciskami."},

    {"options.voice", "Głos i sygnały"},
    {"options.speech", "Mowa"},
    {"options.speech.help",
     "Gra czyta na głos komunikaty, ustawienie rzutu i położenie bil. Klawisz W powtarza."},
    {"aim.everything", "Co gdzie leży"},

    {"options.sight", "Wzrok"},
    {"options.ballMarks", "Znaki na bilach"},
    {"options.ballMarks.help", "Na czerwonych bilach są pierścienie, na niebieskich krzyżyki."},
    {"options.ballOutlines", "Obrysy bil"},
    {"options.ballOutlines.help", "Linia wokół każdej bili odcina ją od boiska."},
    {"options.clearPointer", "Biały wskaźnik"},
    {"options.clearPointer.help", "Wskaźnik celowania jest biały z czarną obwódką."},
    {"options.solidPanels", "Nieprzezroczyste panele"},
    {"options.solidPanels.help", "Przez panele na ekranie nic nie prześwituje."},

    {"options.sound", "Dźwięk"},
    {"options.mute", "Bez dźwięku"},
    {"options.mute.help", "Wyłącza wszystkie dźwięki. To samo robi klawisz M."},
    {"options.crowdVolume", "Głośność widowni"},
    {"options.crowdVolume.help", "Jak głośno słychać kibiców."},
    {"options.effectVolume", "Głośność gry"},
    {"options.effectVolume.help", "Jak głośno słychać rzuty, uderzenia i wyniki."},
    {"options.soundNotes", "Pokazuj dźwięki"},
    {"options.soundNotes.help", "Każdy dźwięk pojawia się na ekranie jako napis."},

    {"options.rest", "Przerwa i bezpieczeństwo"},
    {"options.menuPauses", "Menu zatrzymuje mecz"},
    {"options.menuPauses.help", "Gdy menu jest otwarte, mecz czeka."},
    {"options.askToLeave", "Pytaj przed wyjściem"},
    {"options.askToLeave.help", "Gdy zamykasz okno w trakcie meczu, gra najpierw pyta."},

    {"leave.question", "Mecz jeszcze trwa. Wyjść mimo to?"},
    {"leave.leave", "Wyjdź"},
    {"leave.cancel", "Anuluj"},

    {"aim.left", "W lewo"},
    {"aim.right", "W prawo"},
    {"aim.up", "W górę"},
    {"aim.down", "W dół"},
    {"aim.ok", "OK"},
    {"aim.takeBack", "Cofnij"},
    {"aim.powerByKeys", "[↑][↓] – siła rzutu. [SPACJA] – rzut"},

    {"switch.begin", "Naciśnij, aby celować"},
    {"switch.angle", "Naciśnij, gdy kierunek jest dobry"},
    {"switch.pitch", "Naciśnij, gdy wysokość jest dobra"},
    {"switch.power", "Naciśnij, gdy siła jest dobra"},
    {"switch.throw", "Naciśnij, aby rzucić"},
    {"switch.again", "Naciśnij, aby celować od nowa"},
    {"switch.goOn", "Naciśnij, aby przejść dalej"},
    {"switch.resting", "Naciśnij, aby wznowić wybór"},

    {"key.space", "Spacja"},

    {"controls.title", "Klawisze i przyciski"},
    {"controls.help",
     "Wybierz + i naciśnij klawisz lub przycisk: do trzech na czynność. Aby któryś usunąć, wybierz go."},
    {"controls.keyboard", "Klawiatura"},
    {"controls.accept", "Celowanie, rzut, OK"},
    {"controls.everything", "Gdzie co leży"},
    {"controls.addKey", "Dodaj klawisz"},
    {"controls.addButton", "Dodaj przycisk"},
    {"controls.pressButton", "Naciśnij przycisk…"},
    {"controls.moved.format", "%@ to teraz „%@”, a już nie „%@”."},
    {"controls.needed.format", "%@ zostaje: „%@” nie ma nic innego."},
    {"controls.reserved.format", "%@ służy w menu."},
    {"controls.reset", "Przywróć zwykłe klawisze"},
    {"button.cross", "Krzyżyk"},
    {"button.circle", "Kółko"},
    {"button.square", "Kwadrat"},
    {"button.triangle", "Trójkąt"},
    {"button.number.format", "Przycisk %@"},

    {"sound.throw", "Rzut"},
    {"sound.hit", "Bila uderza w bilę"},
    {"sound.victory", "Wiwaty"},
});

} // namespace vorbel::L10n::options
