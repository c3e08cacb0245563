// The options in Italian.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::options {

inline constexpr auto it = std::to_array<Text>({
    {"menu.options", "Opzioni"},

    {"options.throw", "Lancio"},
    {"options.powerPace", "Ritmo della forza"},
    {"options.powerPace.help", "La forza oscilla più lentamente prima del lancio, oppure si regola con le "
                               "frecce."},
    {"options.asUsual", "Normale"},
    {"options.byKeys", "Con le frecce"},
    {"options.fineAim", "Mira fine e annullamento"},
    {"options.fineAim.help", "Con Maiusc le frecce mirano a piccoli passi. [Backspace] annulla la forza, poi "
                             "la mira."},

    {"options.oneSwitch", "Un solo sensore"},
    {"options.switchOn", "Gioca con un sensore"},
    {"options.switchOn.help", "Le scelte scorrono da sole: un tasto, un clic o un pulsante conferma quella "
                              "del momento."},
    {"options.switchPace", "Tempo per ogni scelta"},
    {"options.switchPace.help", "Quanto dura ogni scelta."},
    {"options.switchAsks", "Chiedi prima del lancio"},
    {"options.switchAsks.help", "Prima di lasciare la boccia puoi mirare di nuovo."},
    {"options.switchRest", "Pausa dopo ogni pressione"},
    {"options.switchRest.help", "Se premi di nuovo durante la pausa, non conta."},
    {"options.switchKey", "Un tasto in più"},
    {"options.switchKey.help", "Un altro tasto che fa da sensore: scegli questa voce, poi premi il tasto."},
    {"options.pressKey", "Premi un tasto..."},
    {"options.none", "Nessuno"},
    {"options.seconds.format", "%@ s"},

    {"options.devices", "Mouse e controller"},
    {"options.courtButtons", "Pulsanti sul campo"},
    {"options.courtButtons.help", "Grandi pulsanti a bordo campo per mirare, lanciare e annullare."},
    {"options.controller", "Controller"},
    {"options.controller.help", "Per mirare, lanciare e scegliere con controller di gioco e interfacce per "
                                "sensori."},

    {"options.voice", "Voce e toni"},
    {"options.speech", "Voce"},
    {"options.speech.help", "Il gioco dice i messaggi, la mira e la posizione delle bocce. Il tasto [W] li "
                            "ripete."},
    {"aim.everything", "Di’ le posizioni"},
    {"options.tones", "Toni per la mira"},
    {"options.tones.help", "Un tono sale con la forza e si sposta da sinistra a destra con l’angolo."},
    {"options.hitPlaces", "Urti in stereo"},
    {"options.hitPlaces.help", "Ogni urto si sente dal lato del campo in cui avviene."},

    {"options.sight", "Vista"},
    {"options.textSize", "Dimensione del testo"},
    {"options.textSize.help", "La dimensione di tutti i testi."},
    {"options.ballMarks", "Segni sulle bocce"},
    {"options.ballMarks.help", "Anelli sulle bocce rosse, croci su quelle blu."},
    {"options.ballOutlines", "Bocce con contorno"},
    {"options.ballOutlines.help", "Una linea attorno a ogni boccia la fa risaltare sul campo."},
    {"options.clearPointer", "Linea di mira bianca"},
    {"options.clearPointer.help", "La linea di mira è bianca con il bordo nero."},
    {"options.solidPanels", "Pannelli opachi"},
    {"options.solidPanels.help", "Attraverso i pannelli non si vede nulla."},

    {"options.sound", "Audio"},
    {"options.mute", "Disattiva l’audio"},
    {"options.mute.help", "Spegne tutti i suoni, come il tasto [M]."},
    {"options.crowdVolume", "Volume del pubblico"},
    {"options.crowdVolume.help", "Quanto si sente il pubblico."},
    {"options.effectVolume", "Volume del gioco"},
    {"options.effectVolume.help", "Quanto si sentono i lanci, gli urti e i risultati."},
    {"options.soundNotes", "Mostra i suoni"},
    {"options.soundNotes.help", "Ogni suono compare anche per iscritto."},

    {"options.rest", "Pausa e sicurezza"},
    {"options.menuPauses", "Il menu ferma la partita"},
    {"options.menuPauses.help", "Finché un menu è aperto, la partita aspetta."},
    {"options.askToLeave", "Chiedi prima di uscire"},
    {"options.askToLeave.help", "Se chiudi la finestra a partita in corso, il gioco chiede conferma."},

    {"leave.question", "La partita non è ancora finita. Uscire lo stesso?"},
    {"leave.leave", "Esci"},
    {"leave.cancel", "Annulla"},

    {"aim.left", "Sinistra"},
    {"aim.right", "Destra"},
    {"aim.up", "Su"},
    {"aim.down", "Giù"},
    {"aim.ok", "Conferma"},
    {"aim.takeBack", "Annulla"},
    {"aim.powerByKeys", "[↑][↓] per regolare la forza. [SPAZIO] per lanciare"},

    {"switch.begin", "Premi per mirare"},
    {"switch.angle", "Premi quando la direzione è giusta"},
    {"switch.pitch", "Premi quando l’altezza è giusta"},
    {"switch.power", "Premi quando la forza è giusta"},
    {"switch.throw", "Premi per lanciare"},
    {"switch.again", "Premi per mirare di nuovo"},
    {"switch.goOn", "Premi per continuare"},
    {"switch.resting", "Premi per far ripartire le scelte"},

    {"key.space", "Spazio"},

    {"controls.title", "Tasti e pulsanti"},
    {"controls.help",
     "Scegli + e premi un tasto o un pulsante: fino a tre per azione. Per toglierne uno, sceglilo."},
    {"controls.keyboard", "Tastiera"},
    {"controls.accept", "Mira, lancia, conferma"},
    {"controls.everything", "Dove si trova tutto"},
    {"controls.addKey", "Aggiungi un tasto"},
    {"controls.addButton", "Aggiungi un pulsante"},
    {"controls.pressButton", "Premi un pulsante..."},
    {"controls.moved.format", "%@ ora serve per «%@», non più per «%@»."},
    {"controls.needed.format", "%@ resta: «%@» non ha altro."},
    {"controls.reserved.format", "%@ serve nei menu."},
    {"controls.reset", "Ripristina i tasti"},
    {"button.cross", "Croce"},
    {"button.circle", "Cerchio"},
    {"button.square", "Quadrato"},
    {"button.triangle", "Triangolo"},
    {"button.number.format", "Pulsante %@"},

    {"sound.throw", "Lancio"},
    {"sound.hit", "Urto tra bocce"},
    {"sound.victory", "Acclamazioni"},
});

} // namespace vorbel::L10n::options
