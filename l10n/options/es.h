// The options in Spanish.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::options {

inline constexpr auto es = std::to_array<Text>({
    {"menu.options", "Opciones"},

    {"options.throw", "Lanzamiento"},
    {"options.powerPace", "Ritmo de la fuerza"},
    {"options.powerPace.help", "La fuerza oscila más despacio antes de lanzar o se ajusta con las flechas."},
    {"options.asUsual", "Normal"},
    {"options.byKeys", "Con las flechas"},
    {"options.fineAim", "Puntería fina y deshacer"},
    {"options.fineAim.help", "Con Mayús, las flechas apuntan poco a poco. [Retroceso] deshace la fuerza y "
                             "después la puntería."},

    {"options.oneSwitch", "Un solo pulsador"},
    {"options.switchOn", "Jugar con un pulsador"},
    {"options.switchOn.help", "Las opciones van pasando solas; una tecla, un clic o un botón elige la que "
                              "toca."},
    {"options.switchPace", "Tiempo para cada opción"},
    {"options.switchPace.help", "Cuánto espera cada opción a que la elijas."},
    {"options.switchAsks", "Preguntar antes de lanzar"},
    {"options.switchAsks.help", "Antes de soltar la bola puedes volver a apuntar."},
    {"options.switchRest", "Pausa tras pulsar"},
    {"options.switchRest.help", "Si vuelves a pulsar durante esa pausa, no cuenta."},
    {"options.switchKey", "Una tecla más"},
    {"options.switchKey.help", "Otra tecla que hace de pulsador: elige esto y luego pulsa la tecla."},
    {"options.pressKey", "Pulsa una tecla..."},
    {"options.none", "Ninguna"},
    {"options.seconds.format", "%@ s"},

    {"options.devices", "Ratón y mando"},
    {"options.courtButtons", "Botones en la pista"},
    {"options.courtButtons.help", "Botones grandes al borde de la pista para apuntar, lanzar y deshacer."},
    {"options.controller", "Mando"},
    {"options.controller.help", "Para apuntar, lanzar y elegir con mandos de juego y adaptadores de "
                                "pulsadores."},

    {"options.voice", "Voz y tonos"},
    {"options.speech", "Voz"},
    {"options.speech.help",
     "El juego dice los mensajes, la puntería y dónde están las bolas. La tecla [W] lo "
     "repite."},
    {"aim.everything", "Decir posiciones"},
    {"options.tones", "Tonos al apuntar"},
    {"options.tones.help", "Un tono sube con la fuerza y va de izquierda a derecha con el ángulo."},
    {"options.hitPlaces", "Choques en estéreo"},
    {"options.hitPlaces.help", "Cada choque se oye en el lado de la pista donde ocurre."},

    {"options.sight", "Visión"},
    {"options.textSize", "Tamaño del texto"},
    {"options.textSize.help", "El tamaño de todos los textos."},
    {"options.ballMarks", "Marcas en las bolas"},
    {"options.ballMarks.help", "Las bolas rojas llevan anillos; las azules, cruces."},
    {"options.ballOutlines", "Bolas con contorno"},
    {"options.ballOutlines.help", "Una línea rodea cada bola para que destaque sobre la pista."},
    {"options.clearPointer", "Línea de mira blanca"},
    {"options.clearPointer.help", "La línea de mira es blanca con el borde negro."},
    {"options.solidPanels", "Paneles opacos"},
    {"options.solidPanels.help", "Los paneles no dejan ver lo que hay detrás."},

    {"options.sound", "Sonido"},
    {"options.mute", "Sin sonido"},
    {"options.mute.help", "Apaga todos los sonidos, igual que la tecla [M]."},
    {"options.crowdVolume", "Volumen del público"},
    {"options.crowdVolume.help", "Cuánto se oye al público."},
    {"options.effectVolume", "Volumen del juego"},
    {"options.effectVolume.help", "Cuánto se oyen los lanzamientos, los choques y los resultados."},
    {"options.soundNotes", "Mostrar los sonidos"},
    {"options.soundNotes.help", "Cada sonido aparece también por escrito."},

    {"options.rest", "Pausa y seguridad"},
    {"options.menuPauses", "El menú detiene el partido"},
    {"options.menuPauses.help", "Mientras hay un menú abierto, el partido espera."},
    {"options.askToLeave", "Preguntar antes de salir"},
    {"options.askToLeave.help", "Si cierras la ventana en pleno partido, el juego pregunta antes."},

    {"leave.question", "El partido aún no ha terminado. ¿Salir de todos modos?"},
    {"leave.leave", "Salir"},
    {"leave.cancel", "Cancelar"},

    {"aim.left", "Izquierda"},
    {"aim.right", "Derecha"},
    {"aim.up", "Arriba"},
    {"aim.down", "Abajo"},
    {"aim.ok", "Aceptar"},
    {"aim.takeBack", "Deshacer"},
    {"aim.powerByKeys", "[↑][↓] para ajustar la fuerza. [ESPACIO] para lanzar"},

    {"switch.begin", "Pulsa para apuntar"},
    {"switch.angle", "Pulsa cuando la dirección esté bien"},
    {"switch.pitch", "Pulsa cuando la altura esté bien"},
    {"switch.power", "Pulsa cuando la fuerza esté bien"},
    {"switch.throw", "Pulsa para lanzar"},
    {"switch.again", "Pulsa para volver a apuntar"},
    {"switch.goOn", "Pulsa para seguir"},
    {"switch.resting", "Pulsa para que sigan pasando las opciones"},

    {"key.space", "Espacio"},

    {"controls.title", "Teclas y botones"},
    {"controls.help",
     "Elige + y pulsa una tecla o un botón: hasta tres por acción. Para quitar uno, elígelo."},
    {"controls.keyboard", "Teclado"},
    {"controls.accept", "Apuntar, lanzar, aceptar"},
    {"controls.everything", "Dónde está todo"},
    {"controls.addKey", "Añadir una tecla"},
    {"controls.addButton", "Añadir un botón"},
    {"controls.pressButton", "Pulsa un botón..."},
    {"controls.moved.format", "%@ sirve ahora para «%@» y ya no para «%@»."},
    {"controls.needed.format", "%@ se queda: «%@» no tiene nada más."},
    {"controls.reserved.format", "%@ se usa en los menús."},
    {"controls.reset", "Restablecer las teclas"},
    {"button.cross", "Cruz"},
    {"button.circle", "Círculo"},
    {"button.square", "Cuadrado"},
    {"button.triangle", "Triángulo"},
    {"button.number.format", "Botón %@"},

    {"sound.throw", "Lanzamiento"},
    {"sound.hit", "Choque de bolas"},
    {"sound.victory", "Ovación"},
});

} // namespace vorbel::L10n::options
