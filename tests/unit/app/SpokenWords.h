// The sentences about balls in five languages, put together without the program's tables.
#pragma once

#include <array>
#include <cmath>
#include <string>

namespace vorbel::test {

struct SpokenWords {
    std::string code;
    std::string decimalPoint;
    std::string (*centimetres)(int);             // 1 … 99
    std::string (*metres)(int whole, bool more); // the unit alone, behind a number; more: with a decimal
    std::string closestRed, closestBlue, red, blue;
    std::string shortOf, beyond, level, left, right, out; // the ball, seen from the jack; # is the distance
    std::string jackLeft, jackRight, jackAhead;           // # is how far away, ~ how far to the side
    std::string ballsLeft, score;                         // # is red's, ~ blue's

    [[nodiscard]] std::string inMetres(double length) const {
        const int tenths = static_cast<int>(std::round(length * 10));
        const bool more = tenths % 10 != 0;
        std::string number = std::to_string(tenths / 10);
        if (more) {
            number += decimalPoint + std::to_string(tenths % 10);
        }
        const std::string unit = this->metres(tenths / 10, more);
        return unit.find('#') == std::string::npos ? unit : with(unit, number);
    }
    [[nodiscard]] std::string fromJack(double length) const {
        const int whole = static_cast<int>(std::round(length * 100));
        return whole < 100 ? centimetres(whole) : inMetres(length);
    }
    [[nodiscard]] static std::string with(std::string sentence, const std::string& first,
                                          const std::string& second = "") {
        sentence.replace(sentence.find('#'), 1, first);
        if (const auto at = sentence.find('~'); at != std::string::npos) {
            sentence.replace(at, 1, second);
        }
        return sentence;
    }
};

inline std::string russian(int number, const char* one, const char* few, const char* many) {
    const int ones = number % 10;
    const bool isTeen = number % 100 > 10 && number % 100 < 15;
    return isTeen || ones == 0 || ones > 4 ? many : ones == 1 ? one : few;
}

inline const std::array<SpokenWords, 5> spokenWords{
    SpokenWords{"en", ".",
                [](int n) { return std::to_string(n) + (n == 1 ? " centimetre" : " centimetres"); },
                [](int n, bool more) { return std::string(n == 1 && !more ? "# metre" : "# metres"); },
                "Red is closest, #.", "Blue is closest, #.", "Red #.", "Blue #.",
                "Ball at rest, # short of the jack.", "Ball at rest, # beyond the jack.",
                "Ball at rest, level with the jack.", "# to its left.", "# to its right.", "The ball is out.",
                "Jack # away, ~ to the left.", "Jack # away, ~ to the right.", "Jack # away, straight ahead.",
                "Balls left: red #, blue ~.", "Score: red #, blue ~."},
    SpokenWords{"de", ",", [](int n) { return std::to_string(n) + " Zentimeter"; },
                [](int, bool) { return std::string("# Meter"); }, "Rot liegt am nächsten, #.",
                "Blau liegt am nächsten, #.", "Rot #.", "Blau #.", "Ball liegt # vor dem Jackball.",
                "Ball liegt # hinter dem Jackball.", "Ball liegt auf Höhe des Jackballs.", "# links davon.",
                "# rechts davon.", "Der Ball ist im Aus.", "Jackball # entfernt, ~ nach links.",
                "Jackball # entfernt, ~ nach rechts.", "Jackball # entfernt, geradeaus.",
                "Noch zu werfen: Rot #, Blau ~.", "Punkte: Rot #, Blau ~."},
    SpokenWords{"fr", ",", [](int n) { return std::to_string(n) + (n < 2 ? " centimètre" : " centimètres"); },
                [](int n, bool) { return std::string(n < 2 ? "# mètre" : "# mètres"); },
                "Rouge est le plus proche, à #.", "Bleu est le plus proche, à #.", "Rouge à #.", "Bleu à #.",
                "Balle arrêtée # devant le jack.", "Balle arrêtée # derrière le jack.",
                "Balle arrêtée à hauteur du jack.", "# à sa gauche.", "# à sa droite.",
                "La balle est sortie.", "Jack à #, ~ sur la gauche.", "Jack à #, ~ sur la droite.",
                "Jack à #, tout droit.", "Balles restantes\u00A0: Rouge #, Bleu ~.",
                "Score\u00A0: Rouge #, Bleu ~."},
    SpokenWords{
        "ru", ",",
        [](int n) { return std::to_string(n) + " " + russian(n, "сантиметр", "сантиметра", "сантиметров"); },
        [](int n, bool more) { return "# " + (more ? "метра" : russian(n, "метр", "метра", "метров")); },
        "Ближе всех красные: #.", "Ближе всех синие: #.", "Красные: #.", "Синие: #.",
        "Мяч остановился за # до кона.", "Мяч остановился на # дальше кона.",
        "Мяч остановился вровень с коном.", "На # левее кона.", "На # правее кона.", "Мяч вышел в аут.",
        "До кона #, левее на ~.", "До кона #, правее на ~.", "До кона #, прямо впереди.",
        "Осталось мячей: у красных #, у синих ~.", "Счёт: красные #, синие ~."},
    SpokenWords{"ar", ".",
                [](int n) {
                    return n == 1    ? "سنتيمتر واحد"
                           : n == 2  ? "سنتيمتران"
                           : n <= 10 ? std::to_string(n) + " سنتيمترات"
                                     : std::to_string(n) + " سنتيمترًا";
                },
                [](int n, bool more) {
                    return std::string(more      ? "# متر"
                                       : n == 1  ? "متر واحد"
                                       : n == 2  ? "متران"
                                       : n <= 10 ? "# أمتار"
                                                 : "# مترًا");
                },
                "الأحمر هو الأقرب، #.", "الأزرق هو الأقرب، #.", "الأحمر، #.", "الأزرق، #.",
                "توقفت الكرة قبل الجاك، والفارق #.", "توقفت الكرة خلف الجاك، والفارق #.",
                "توقفت الكرة بمحاذاة الجاك.", "# إلى يسار الجاك.", "# إلى يمين الجاك.",
                "خرجت الكرة من الملعب.", "المسافة إلى الجاك #، وإلى اليسار ~.",
                "المسافة إلى الجاك #، وإلى اليمين ~.", "المسافة إلى الجاك #، إلى الأمام مباشرة.",
                "الكرات المتبقية: الأحمر #، الأزرق ~.", "النتيجة: الأحمر #، الأزرق ~."},
};

} // namespace vorbel::test
