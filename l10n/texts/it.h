// Italian texts.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::texts {

inline constexpr auto it = std::to_array<Text>({
    {"team.red", "Rosso"},
    {"team.blue", "Blu"},
    {"team.red.caps", "ROSSO"},
    {"team.blue.caps", "BLU"},

    {"label.score", "Punti:"},
    {"label.ballsLeft", "Bocce:"},
    {"label.end", "Parziale"},

    {"menu.matchResult", "Risultato partita"},
    {"menu.nextRound", "Prossimo turno"},
    {"menu.mainMenu", "Menu principale"},

    {"label.end.format", "Parziale %@ di 4"},
    {"label.playingAs.format", "Squadra: %@ · Classe %@"},
    {"label.rampHint", "Rampa: la boccia resta a terra, [↑][↓] disattivati"},
    {"label.aiDifficulty", "Difficoltà IA"},
    {"label.throwPower", "Forza del lancio"},
    {"label.aiToggle", "IA"},

    {"difficulty.easy", "Facile"},
    {"difficulty.medium", "Media"},
    {"difficulty.hard", "Difficile"},
    {"difficulty.ultra", "Ultra"},

    {"menu.language", "Lingua"},
    {"menu.gameMenu", "Gioco"},
    {"menu.toggleFullScreen", "Schermo intero"},
    {"menu.rank.format", "Grado: %@"},
    {"menu.gamesNext.format", "Partite giocate: %@ · al prossimo grado: %@"},
    {"menu.gamesMax.format", "Partite giocate: %@ · grado massimo raggiunto"},
    {"menu.startGame", "Inizia partita"},
    {"menu.tournament", "Torneo"},
    {"menu.rules", "Regole"},
    {"menu.about", "Informazioni"},
    {"menu.exit", "Esci"},
    {"menu.chooseCountry", "Per quale Paese giochi?"},
    {"menu.play", "Gioca"},
    {"menu.sportClass", "Classe sportiva"},
    {"menu.back", "Indietro"},
    {"menu.isRealAthlete", "Sono atleta nella vita reale"},
    {"menu.diary", "Diario dell’atleta"},

    {"diary.totalXP.format", "Esperienza (XP): %@"},
    {"diary.empty", "Ancora nessuna voce. Gioca una partita!"},
    {"diary.win", "Vittoria"},
    {"diary.loss", "Sconfitta"},
    {"diary.draw", "Pareggio"},
    {"diary.entry.format", "%@ (+%@ XP)"},

    {"bc.desc.bc1",
     "Paralisi cerebrale, lancio con la mano o con il piede. È ammesso un assistente, solo per stabilizzare la carrozzina e porgere la boccia."},
    {"bc.desc.bc2",
     "Paralisi cerebrale, livello funzionale superiore a quello della BC1. Assistente non ammesso."},
    {"bc.desc.bc3",
     "Le disabilità più gravi (qualsiasi diagnosi), lancio con una rampa (scivolo) e il supporto di un assistente in campo."},
    {"bc.desc.bc4",
     "Gravi disabilità motorie non dovute a paralisi cerebrale (per esempio distrofia muscolare). Senza rampa e senza assistente."},

    {"rank.novice", "Principiante"},
    {"rank.thirdYouth", "3ª categoria giovanile"},
    {"rank.secondYouth", "2ª categoria giovanile"},
    {"rank.firstYouth", "1ª categoria giovanile"},
    {"rank.thirdRank", "3ª categoria"},
    {"rank.secondRank", "2ª categoria"},
    {"rank.firstRank", "1ª categoria"},
    {"rank.cms", "Candidato Maestro dello Sport"},
    {"rank.ms", "Maestro dello Sport"},

    {"msg.initial", "Premi [SPAZIO] per iniziare a mirare"},
    {"msg.aimingHint", "Frecce [←][→] e [↑][↓] per mirare. [SPAZIO] per confermare."},
    {"msg.lockPower", "[SPAZIO] Fissa la forza del lancio"},
    {"msg.ballInPlay", "Boccia in gioco..."},
    {"msg.turn.format", "Tocca a %@. [SPAZIO] per mirare"},
    {"msg.endWon.format", "%@ vince il parziale! Punti: %@."},
    {"msg.endDraw", "Parziale in parità!"},
    {"msg.matchDraw", "Partita in parità!"},
    {"msg.teamWinMatch.format", "%@ vince la partita!"},
    {"msg.matchOver.format", "%@ Risultato %@-%@. [SPAZIO] per una nuova partita"},
    {"msg.nextEndPrompt.format", "%@ [SPAZIO] per il prossimo parziale"},
    {"msg.newEndStart.format", "Inizia il parziale %@. Tocca a %@. [SPAZIO] per mirare"},
    {"msg.jackOut.format", "Il jack è uscito! Ora tocca a %@. [SPAZIO] per mirare"},
    {"msg.tieBreak.format",
     "Partita in parità! Parziale supplementare %@: jack al centro. Tocca a %@. [SPAZIO] per mirare"},
    {"msg.aiAiming.format", "L’IA (%@) sta mirando..."},
    {"msg.tournamentRound.format", "Torneo, turno %@ di %@! Avversario: %@ (%@). [SPAZIO] per mirare"},
    {"msg.tournamentEliminated.format",
     "Torneo finito: eliminazione al turno %@ di %@. [SPAZIO] per una nuova partita"},
    {"msg.tournamentChampion.format",
     "TRIONFO NEL TORNEO! Hai vinto tutti e %@ i turni! [SPAZIO] per una nuova partita"},

    {"country.france", "Francia"},
    {"country.germany", "Germania"},
    {"country.thailand", "Thailandia"},
    {"country.brazil", "Brasile"},
    {"country.japan", "Giappone"},
    {"country.southKorea", "Corea del Sud"},
    {"country.greatBritain", "Gran Bretagna"},
    {"country.portugal", "Portogallo"},
    {"country.china", "Cina"},
    {"country.belgium", "Belgio"},
    {"country.croatia", "Croazia"},
    {"country.czechRepublic", "Repubblica Ceca"},
    {"country.greece", "Grecia"},
    {"country.hungary", "Ungheria"},
    {"country.netherlands", "Paesi Bassi"},
    {"country.poland", "Polonia"},
    {"country.slovakia", "Slovacchia"},
    {"country.spain", "Spagna"},
    {"country.ukraine", "Ucraina"},
    {"country.hongKong", "Hong Kong"},
    {"country.indonesia", "Indonesia"},
    {"country.malaysia", "Malaysia"},
    {"country.singapore", "Singapore"},
    {"country.israel", "Israele"},
    {"country.argentina", "Argentina"},
    {"country.bermuda", "Bermuda"},
    {"country.canada", "Canada"},
    {"country.colombia", "Colombia"},
    {"country.ecuador", "Ecuador"},
    {"country.elSalvador", "El Salvador"},
    {"country.mexico", "Messico"},
    {"country.peru", "Perù"},
    {"country.egypt", "Egitto"},
    {"country.southAfrica", "Sudafrica"},
    {"country.tunisia", "Tunisia"},
    {"country.australia", "Australia"},
    {"country.russia", "Russia"},

    {"rules.text",
     "Lo scopo è lanciare le bocce colorate il più vicino possibile alla boccia bianca (il jack).\n"
     "\n"
     "1. Si stabilisce chi inizia il parziale: quella squadra lancia il jack bianco e poi la sua prima boccia colorata.\n"
     "2. Lancia poi la squadra la cui boccia in quel momento NON è la più vicina al jack.\n"
     "3. Ogni squadra ha 6 bocce per parziale.\n"
     "4. Quando tutte le bocce sono state lanciate, il parziale è finito: la squadra con bocce più vicine al jack della migliore boccia avversaria ottiene un punto per ciascuna di esse.\n"
     "5. Una partita ha 4 parziali. Se alla fine il punteggio è pari, si gioca un parziale supplementare e il jack non viene lanciato: lo posiziona l’arbitro al centro.\n"
     "\n"
     "Comandi:\n"
     "[SPAZIO] — iniziare a mirare / fissare l’angolo / lanciare.\n"
     "[←] [→] [↑] [↓] — direzione e altezza del lancio."},

    {"about.text",
     "VORBEL\n"
     "\n"
     "Realizzato dal team VORBEL.\n"
     "Un gioco di boccia in 3D creato con Qt, OpenGL, Bullet e SDL.\n"
     "\n"
     "Dai creatori di VORBEL anche:\n"
     "· vorbel-sim — il simulatore di partite: avversari controllati dal computer giocano partite intere, senza grafica\n"
     "· il codice sorgente di VORBEL — scritto per essere letto, per chi ama vedere come funziona"},
});

} // namespace vorbel::L10n::texts
