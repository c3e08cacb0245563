// Arabic texts. In logical order and without direction marks, for a right-to-left layout: in the pair of keys
// [→][←] the one read first stands on the right.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::texts {

inline constexpr auto ar = std::to_array<Text>({
    {"team.red", "الأحمر"},
    {"team.blue", "الأزرق"},
    {"team.red.caps", "الأحمر"},
    {"team.blue.caps", "الأزرق"},

    {"label.score", "النقاط:"},
    {"label.ballsLeft", "الكرات:"},
    {"label.end", "الشوط"},

    {"menu.matchResult", "نتيجة المباراة"},
    {"menu.nextRound", "الجولة التالية"},
    {"menu.mainMenu", "القائمة الرئيسية"},

    {"label.end.format", "الشوط %@ من 4"},
    {"label.playingAs.format", "المنتخب: %@ · الفئة %@"},
    {"label.rampHint", "المنحدر: تبقى الكرة على الأرض، [↑][↓] معطّلان"},
    {"label.aiDifficulty", "مستوى اللاعب الآلي"},
    {"label.throwPower", "قوة الرمية"},
    {"label.aiToggle", "آلي"},

    {"difficulty.easy", "سهل"},
    {"difficulty.medium", "متوسط"},
    {"difficulty.hard", "صعب"},
    {"difficulty.ultra", "خارق"},

    {"menu.language", "اللغة"},
    {"menu.gameMenu", "اللعبة"},
    {"menu.toggleFullScreen", "تبديل ملء الشاشة"},
    {"menu.rank.format", "الرتبة: %@"},
    {"menu.gamesNext.format", "المباريات الملعوبة: %@ · المتبقي للرتبة التالية: %@"},
    {"menu.gamesMax.format", "المباريات الملعوبة: %@ · بلغت أعلى رتبة"},
    {"menu.startGame", "ابدأ اللعبة"},
    {"menu.tournament", "البطولة"},
    {"menu.rules", "القواعد"},
    {"menu.about", "حول اللعبة"},
    {"menu.exit", "خروج"},
    {"menu.chooseCountry", "أي بلد تمثّل؟"},
    {"menu.play", "العب"},
    {"menu.sportClass", "الفئة الرياضية"},
    {"menu.back", "رجوع"},
    {"menu.isRealAthlete", "رياضي في الحياة الواقعية"},
    {"menu.diary", "يوميات الرياضي"},

    {"diary.totalXP.format", "نقاط الخبرة: %@"},
    {"diary.empty", "لا توجد سجلات بعد. العب مباراة!"},
    {"diary.win", "فوز"},
    {"diary.loss", "خسارة"},
    {"diary.draw", "تعادل"},
    {"diary.entry.format", "%@ (خبرة مكتسبة: %@)"},

    {"bc.desc.bc1", "شلل دماغي، والرمي باليد أو القدم. يُسمح بمساعد، فقط لتثبيت الكرسي ومناولة الكرة."},
    {"bc.desc.bc2", "شلل دماغي بمستوى وظيفي أعلى من BC1. لا يُسمح بمساعد."},
    {"bc.desc.bc3", "أشد الإعاقات (أيًّا كان التشخيص)، والرمي بواسطة منحدر (مزلق) بدعم من مساعد في الملعب."},
    {"bc.desc.bc4",
     "إعاقات حركية شديدة غير ناتجة عن الشلل الدماغي (مثل الحثل العضلي). من دون منحدر ومن دون مساعد."},

    {"rank.novice", "مبتدئ"},
    {"rank.thirdYouth", "الدرجة الثالثة للناشئين"},
    {"rank.secondYouth", "الدرجة الثانية للناشئين"},
    {"rank.firstYouth", "الدرجة الأولى للناشئين"},
    {"rank.thirdRank", "الدرجة الثالثة"},
    {"rank.secondRank", "الدرجة الثانية"},
    {"rank.firstRank", "الدرجة الأولى"},
    {"rank.cms", "مرشح لأستاذ في الرياضة"},
    {"rank.ms", "أستاذ في الرياضة"},

    {"msg.initial", "اضغط [المسافة] لبدء التصويب"},
    {"msg.aimingHint", "صوّب بالأسهم [→][←] و[↑][↓]. [المسافة] للتأكيد."},
    {"msg.lockPower", "[المسافة] لتثبيت قوة الرمية"},
    {"msg.ballInPlay", "الكرة تتدحرج…"},
    {"msg.turn.format", "دور %@. [المسافة] للتصويب"},
    {"msg.endWon.format", "فاز %@ بالشوط! النقاط: %@."},
    {"msg.endDraw", "تعادل في الشوط!"},
    {"msg.matchDraw", "تعادل في المباراة!"},
    {"msg.teamWinMatch.format", "فاز %@ بالمباراة!"},
    {"msg.matchOver.format", "%@ النتيجة %@:%@. [المسافة] لمباراة جديدة"},
    {"msg.nextEndPrompt.format", "%@ [المسافة] للشوط التالي"},
    {"msg.newEndStart.format", "بدأ الشوط %@. دور %@. [المسافة] للتصويب"},
    {"msg.jackOut.format", "خرج الجاك! انتقل الدور إلى %@. [المسافة] للتصويب"},
    {"msg.tieBreak.format",
     "تعادل في المباراة! الشوط الإضافي %@: وُضع الجاك في المنتصف. دور %@. [المسافة] للتصويب"},
    {"msg.aiAiming.format", "اللاعب الآلي (%@) يصوّب…"},
    {"msg.tournamentRound.format", "الجولة %@ من %@ في البطولة! الخصم: %@ (%@). [المسافة] للتصويب"},
    {"msg.tournamentEliminated.format", "انتهت البطولة: إقصاء في الجولة %@ من %@. [المسافة] لمباراة جديدة"},
    {"msg.tournamentChampion.format", "أحرزت لقب البطولة! فزت بجميع الجولات (%@)! [المسافة] لمباراة جديدة"},

    {"country.france", "فرنسا"},
    {"country.germany", "ألمانيا"},
    {"country.thailand", "تايلاند"},
    {"country.brazil", "البرازيل"},
    {"country.japan", "اليابان"},
    {"country.southKorea", "كوريا الجنوبية"},
    {"country.greatBritain", "بريطانيا العظمى"},
    {"country.portugal", "البرتغال"},
    {"country.china", "الصين"},
    {"country.belgium", "بلجيكا"},
    {"country.croatia", "كرواتيا"},
    {"country.czechRepublic", "التشيك"},
    {"country.greece", "اليونان"},
    {"country.hungary", "المجر"},
    {"country.netherlands", "هولندا"},
    {"country.poland", "بولندا"},
    {"country.slovakia", "سلوفاكيا"},
    {"country.spain", "إسبانيا"},
    {"country.ukraine", "أوكرانيا"},
    {"country.hongKong", "هونغ كونغ"},
    {"country.indonesia", "إندونيسيا"},
    {"country.malaysia", "ماليزيا"},
    {"country.singapore", "سنغافورة"},
    {"country.israel", "إسرائيل"},
    {"country.argentina", "الأرجنتين"},
    {"country.bermuda", "برمودا"},
    {"country.canada", "كندا"},
    {"country.colombia", "كولومبيا"},
    {"country.ecuador", "الإكوادور"},
    {"country.elSalvador", "السلفادور"},
    {"country.mexico", "المكسيك"},
    {"country.peru", "بيرو"},
    {"country.egypt", "مصر"},
    {"country.southAfrica", "جنوب أفريقيا"},
    {"country.tunisia", "تونس"},
    {"country.australia", "أستراليا"},
    {"country.russia", "روسيا"},

    {"rules.text",
     "الهدف هو رمي الكرات الملونة لتقترب قدر الإمكان من الكرة البيضاء (الجاك).\n"
     "\n"
     "1. يُحدَّد أولًا من يبدأ الشوط: يرمي هذا الفريق كرة الجاك البيضاء، ثم كرته الملونة الأولى.\n"
     "2. ثم يرمي الفريق الذي ليست كرته هي الأقرب إلى الجاك في تلك اللحظة.\n"
     "3. لكل فريق 6 كرات في الشوط.\n"
     "4. ينتهي الشوط بعد رمي جميع الكرات: الفريق الذي كراته أقرب إلى الجاك من أفضل كرة للخصم يسجل نقطة واحدة عن كل كرة منها.\n"
     "5. تتألف المباراة من 4 أشواط. إذا تعادل الفريقان بعدها، يُلعب شوط إضافي، ولا يُرمى الجاك بل يضعه الحكم في المنتصف.\n"
     "\n"
     "التحكم:\n"
     "[المسافة] — بدء التصويب / تثبيت الزاوية / الرمي.\n"
     "[→] [←] [↑] [↓] — اتجاه الرمية وارتفاعها."},

    {"about.text", "VORBEL\n"
                   "\n"
                   "من صنع فريق VORBEL.\n"
                   "لعبة بوتشيا ثلاثية الأبعاد، صُنعت باستخدام Qt وOpenGL وBullet وSDL.\n"
                   "\n"
                   "ومن صنّاع VORBEL أيضًا:\n"
                   "· محاكي المباريات vorbel-sim — خصوم آليون يلعبون مباريات كاملة من دون رسوميات\n"
                   "· الشيفرة المصدرية للعبة VORBEL — كُتبت لتُقرأ، لمن يحب من اللاعبين أن يرى كيف تعمل"},
});

} // namespace vorbel::L10n::texts
