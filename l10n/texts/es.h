// Spanish texts.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::texts {

inline constexpr auto es = std::to_array<Text>({
    {"team.red", "Rojo"},
    {"team.blue", "Azul"},
    {"team.red.caps", "ROJO"},
    {"team.blue.caps", "AZUL"},

    {"label.score", "Puntos:"},
    {"label.ballsLeft", "Bolas:"},
    {"label.end", "Parcial"},

    {"menu.matchResult", "Resultado del partido"},
    {"menu.nextRound", "Siguiente ronda"},
    {"menu.mainMenu", "Menú principal"},

    {"label.end.format", "Parcial %@ de 4"},
    {"label.playingAs.format", "Equipo: %@ · Clase %@"},
    {"label.rampHint", "Rampa: la bola va por el suelo, [↑][↓] desactivadas"},
    {"label.aiDifficulty", "Dificultad de la IA"},
    {"label.throwPower", "Fuerza del lanzamiento"},
    {"label.aiToggle", "IA"},

    {"difficulty.easy", "Fácil"},
    {"difficulty.medium", "Media"},
    {"difficulty.hard", "Difícil"},
    {"difficulty.ultra", "Ultra"},

    {"menu.language", "Idioma"},
    {"menu.gameMenu", "Juego"},
    {"menu.toggleFullScreen", "Pantalla completa"},
    {"menu.rank.format", "Rango: %@"},
    {"menu.gamesNext.format", "Partidos jugados: %@ · para el siguiente rango: %@"},
    {"menu.gamesMax.format", "Partidos jugados: %@ · rango máximo alcanzado"},
    {"menu.startGame", "Empezar partido"},
    {"menu.tournament", "Torneo"},
    {"menu.rules", "Reglas"},
    {"menu.about", "Acerca de"},
    {"menu.exit", "Salir"},
    {"menu.chooseCountry", "¿Con qué país juegas?"},
    {"menu.play", "Jugar"},
    {"menu.sportClass", "Clase deportiva"},
    {"menu.back", "Volver"},
    {"menu.isRealAthlete", "Soy deportista en la vida real"},
    {"menu.diary", "Diario de deportista"},

    {"diary.totalXP.format", "Experiencia (XP): %@"},
    {"diary.empty", "Diario vacío. ¡Juega un partido!"},
    {"diary.win", "Victoria"},
    {"diary.loss", "Derrota"},
    {"diary.draw", "Empate"},
    {"diary.entry.format", "%@ (+%@ XP)"},

    {"bc.desc.bc1",
     "Parálisis cerebral, lanza con la mano o el pie. Se permite un asistente, solo para estabilizar la silla de ruedas y entregar la bola."},
    {"bc.desc.bc2", "Parálisis cerebral, nivel funcional superior al de BC1. No se permite asistente."},
    {"bc.desc.bc3",
     "Las deficiencias más graves (cualquier diagnóstico), lanza con una rampa (canaleta) y la ayuda de un asistente en la pista."},
    {"bc.desc.bc4",
     "Deficiencias motoras graves no causadas por parálisis cerebral (por ejemplo, distrofia muscular). Sin rampa ni asistente."},

    {"rank.novice", "Principiante"},
    {"rank.thirdYouth", "3.ª categoría juvenil"},
    {"rank.secondYouth", "2.ª categoría juvenil"},
    {"rank.firstYouth", "1.ª categoría juvenil"},
    {"rank.thirdRank", "3.ª categoría"},
    {"rank.secondRank", "2.ª categoría"},
    {"rank.firstRank", "1.ª categoría"},
    {"rank.cms", "Candidato a Maestro del Deporte"},
    {"rank.ms", "Maestro del Deporte"},

    {"msg.initial", "Pulsa [ESPACIO] para empezar a apuntar"},
    {"msg.aimingHint", "Flechas [←][→] y [↑][↓] para apuntar. [ESPACIO]: aceptar."},
    {"msg.lockPower", "[ESPACIO] Fijar la fuerza del lanzamiento"},
    {"msg.ballInPlay", "Bola en juego..."},
    {"msg.turn.format", "Turno: %@. [ESPACIO] para apuntar"},
    {"msg.endWon.format", "¡%@ gana el parcial! Puntos: %@."},
    {"msg.endDraw", "¡Empate en el parcial!"},
    {"msg.matchDraw", "¡Empate en el partido!"},
    {"msg.teamWinMatch.format", "¡%@ gana el partido!"},
    {"msg.matchOver.format", "%@ Resultado %@-%@. [ESPACIO] para un nuevo partido"},
    {"msg.nextEndPrompt.format", "%@ [ESPACIO] para el siguiente parcial"},
    {"msg.newEndStart.format", "Comienza el parcial %@. Turno: %@. [ESPACIO] para apuntar"},
    {"msg.jackOut.format", "¡Jack fuera! El turno pasa a %@. [ESPACIO] para apuntar"},
    {"msg.tieBreak.format",
     "¡Partido empatado! Parcial de desempate %@: jack en el centro. Turno: %@. [ESPACIO] para apuntar"},
    {"msg.aiAiming.format", "La IA (%@) está apuntando..."},
    {"msg.tournamentRound.format", "¡Torneo, ronda %@ de %@! Rival: %@ (%@). [ESPACIO] para apuntar"},
    {"msg.tournamentEliminated.format",
     "Fin del torneo: eliminación en la ronda %@ de %@. [ESPACIO] para un nuevo partido"},
    {"msg.tournamentChampion.format",
     "¡VICTORIA EN EL TORNEO! ¡Has ganado las %@ rondas! [ESPACIO] para un nuevo partido"},

    {"country.france", "Francia"},
    {"country.germany", "Alemania"},
    {"country.thailand", "Tailandia"},
    {"country.brazil", "Brasil"},
    {"country.japan", "Japón"},
    {"country.southKorea", "Corea del Sur"},
    {"country.greatBritain", "Gran Bretaña"},
    {"country.portugal", "Portugal"},
    {"country.china", "China"},
    {"country.belgium", "Bélgica"},
    {"country.croatia", "Croacia"},
    {"country.czechRepublic", "República Checa"},
    {"country.greece", "Grecia"},
    {"country.hungary", "Hungría"},
    {"country.netherlands", "Países Bajos"},
    {"country.poland", "Polonia"},
    {"country.slovakia", "Eslovaquia"},
    {"country.spain", "España"},
    {"country.ukraine", "Ucrania"},
    {"country.hongKong", "Hong Kong"},
    {"country.indonesia", "Indonesia"},
    {"country.malaysia", "Malasia"},
    {"country.singapore", "Singapur"},
    {"country.israel", "Israel"},
    {"country.argentina", "Argentina"},
    {"country.bermuda", "Bermudas"},
    {"country.canada", "Canadá"},
    {"country.colombia", "Colombia"},
    {"country.ecuador", "Ecuador"},
    {"country.elSalvador", "El Salvador"},
    {"country.mexico", "México"},
    {"country.peru", "Perú"},
    {"country.egypt", "Egipto"},
    {"country.southAfrica", "Sudáfrica"},
    {"country.tunisia", "Túnez"},
    {"country.australia", "Australia"},
    {"country.russia", "Rusia"},

    {"rules.text",
     "El objetivo es lanzar las bolas de color lo más cerca posible de la bola blanca (el jack).\n"
     "\n"
     "1. Primero se decide quién empieza el parcial: ese equipo lanza el jack blanco y después su primera bola de color.\n"
     "2. A continuación lanza el equipo cuya bola NO sea en ese momento la más cercana al jack.\n"
     "3. Cada equipo tiene 6 bolas por parcial.\n"
     "4. Cuando se han lanzado todas las bolas, termina el parcial: el equipo con bolas más cerca del jack que la mejor bola rival suma un punto por cada una de ellas.\n"
     "5. Un partido tiene 4 parciales. Si acaba en empate, se juega un parcial de desempate y el jack no se lanza: el árbitro lo coloca en el centro.\n"
     "\n"
     "Controles:\n"
     "[ESPACIO] — empezar a apuntar / fijar el ángulo / lanzar.\n"
     "[←] [→] [↑] [↓] — dirección y altura del lanzamiento."},

    {"about.text",
     "VORBEL\n"
     "\n"
     "Creado por el equipo de VORBEL.\n"
     "Un juego de boccia en 3D hecho con Qt, OpenGL, Bullet y SDL.\n"
     "\n"
     "También de los creadores de VORBEL:\n"
     "· vorbel-sim — el simulador de partidos: rivales controlados por la IA juegan partidos enteros, sin gráficos\n"
     "· el código fuente de VORBEL — escrito para ser leído, para quienes disfrutan viendo cómo funciona"},
});

} // namespace vorbel::L10n::texts
