// The options in Arabic.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::options {

inline constexpr auto ar = std::to_array<Text>({
    {"menu.options", "الخيارات"},

    {"options.throw", "الرمي"},
    {"options.powerPace", "سرعة مؤشر القوة"},
    {"options.powerPace.help", "قبل الرمي تتغير القوة ببطء أكبر، أو تنتظر أن تضبطها بالأسهم."},
    {"options.asUsual", "كالمعتاد"},
    {"options.byKeys", "بالأسهم"},
    {"options.fineAim", "التصويب الدقيق والتراجع"},
    {"options.fineAim.help",
     "مع Shift تصوّب الأسهم بخطوات صغيرة. ومع [Backspace] تتراجع عن القوة ثم عن التصويب."},

    {"options.oneSwitch", "زر واحد"},
    {"options.switchOn", "اللعب بزر واحد"},
    {"options.switchOn.help", "تتوالى الخيارات وحدها، وتختار بمفتاح واحد أو زر أو نقرة."},
    {"options.switchPace", "مهلة كل خيار"},
    {"options.switchPace.help", "المدة التي ينتظرها كل خيار حتى تختاره."},
    {"options.switchAsks", "السؤال قبل الرمي"},
    {"options.switchAsks.help", "يتيح لك إعادة التصويب قبل رمي الكرة."},
    {"options.switchRest", "مهلة بعد الضغط"},
    {"options.switchRest.help", "لا تُحتسب ضغطة ثانية قبل انقضاء هذه المهلة."},
    {"options.switchKey", "مفتاح إضافي"},
    {"options.switchKey.help", "مفتاح آخر يقوم مقام الزر: اختر هذا ثم اضغط المفتاح."},
    {"options.pressKey", "اضغط مفتاحًا…"},
    {"options.none", "لا يوجد"},
    {"options.seconds.format", "%@ ث"},

    {"options.devices", "الفأرة ووحدة التحكم"},
    {"options.courtButtons", "أزرار على الملعب"},
    {"options.courtButtons.help", "أزرار كبيرة عند حافة الملعب للتصويب والرمي والتراجع."},
    {"options.controller", "وحدة التحكم"},
    {"options.controller.help", "صوّب وارمِ واختر بوحدة التحكم أو بالأزرار الخارجية."},

    {"options.voice", "النطق والنغمات"},
    {"options.speech", "نطق ما يجري"},
    {"options.speech.help", "تُنطق الرسائل والتصويب ومواضع الكرات. المفتاح [W] يعيد نطقها."},
    {"aim.everything", "اذكر المواضع"},
    {"options.tones", "نغمات التصويب"},
    {"options.tones.help", "ترتفع النغمة مع القوة، وتنتقل من اليسار إلى اليمين مع الزاوية."},
    {"options.hitPlaces", "اصطدامات بصوت مجسّم"},
    {"options.hitPlaces.help", "يُسمع الاصطدام من جهة الملعب التي تلتقي فيها الكرات."},

    {"options.sight", "الرؤية"},
    {"options.textSize", "حجم النص"},
    {"options.textSize.help", "حجم جميع النصوص في اللعبة."},
    {"options.ballMarks", "علامات على الكرات"},
    {"options.ballMarks.help", "على الكرات الحمراء حلقات، وعلى الزرقاء خطوط متقاطعة."},
    {"options.ballOutlines", "إطار حول الكرات"},
    {"options.ballOutlines.help", "خط حول كل كرة يميزها عن أرض الملعب."},
    {"options.clearPointer", "مؤشر أبيض"},
    {"options.clearPointer.help", "مؤشر التصويب أبيض بحافة سوداء."},
    {"options.solidPanels", "لوحات معتمة"},
    {"options.solidPanels.help", "لا يظهر شيء من خلف لوحات الشاشة."},

    {"options.sound", "الأصوات"},
    {"options.mute", "بلا صوت"},
    {"options.mute.help", "يُسكت جميع الأصوات، وكذلك يفعل المفتاح [M]."},
    {"options.crowdVolume", "صوت الجمهور"},
    {"options.crowdVolume.help", "مدى ارتفاع صوت المتفرجين."},
    {"options.effectVolume", "صوت اللعبة"},
    {"options.effectVolume.help", "مدى ارتفاع أصوات الرميات والاصطدامات والنتائج."},
    {"options.soundNotes", "إظهار الأصوات"},
    {"options.soundNotes.help", "يظهر اسم كل صوت على الشاشة عند سماعه."},

    {"options.rest", "الراحة والأمان"},
    {"options.menuPauses", "القائمة توقف المباراة"},
    {"options.menuPauses.help", "تنتظر المباراة ما دامت القائمة مفتوحة."},
    {"options.askToLeave", "السؤال قبل الخروج"},
    {"options.askToLeave.help", "إذا أغلقت النافذة أثناء المباراة، تسألك اللعبة أولًا."},

    {"leave.question", "لم تنتهِ المباراة بعد. هل تريد الخروج؟"},
    {"leave.leave", "خروج"},
    {"leave.cancel", "إلغاء"},

    {"aim.left", "يسار"},
    {"aim.right", "يمين"},
    {"aim.up", "أعلى"},
    {"aim.down", "أسفل"},
    {"aim.ok", "تأكيد"},
    {"aim.takeBack", "تراجع"},
    {"aim.powerByKeys", "[↑][↓] لضبط القوة. [المسافة] للرمي"},

    {"switch.begin", "اضغط للتصويب"},
    {"switch.angle", "اضغط عند الاتجاه المناسب"},
    {"switch.pitch", "اضغط عند الارتفاع المناسب"},
    {"switch.power", "اضغط عند القوة المناسبة"},
    {"switch.throw", "اضغط للرمي"},
    {"switch.again", "اضغط لإعادة التصويب"},
    {"switch.goOn", "اضغط للمتابعة"},
    {"switch.resting", "اضغط لاستئناف الاختيار"},

    {"key.space", "المسافة"},

    {"controls.title", "المفاتيح والأزرار"},
    {"controls.help", "اختر + ثم اضغط مفتاحًا أو زرًا، حتى ثلاثة لكل فعل. ولإزالة أحدها اختره."},
    {"controls.keyboard", "لوحة المفاتيح"},
    {"controls.accept", "التصويب والرمي والتأكيد"},
    {"controls.everything", "مواضع الكرات"},
    {"controls.addKey", "إضافة مفتاح"},
    {"controls.addButton", "إضافة زر"},
    {"controls.pressButton", "اضغط زرًا…"},
    {"controls.moved.format", "%@: الآن «%@» وليس «%@»."},
    {"controls.needed.format", "%@: باقٍ، فليس للفعل «%@» سواه."},
    {"controls.reserved.format", "%@: محجوز للقوائم."},
    {"controls.reset", "استعادة المفاتيح المعتادة"},
    {"button.cross", "إكس"},
    {"button.circle", "دائرة"},
    {"button.square", "مربع"},
    {"button.triangle", "مثلث"},
    {"button.number.format", "زر %@"},

    {"sound.throw", "رمية"},
    {"sound.hit", "كرة تصطدم بكرة"},
    {"sound.victory", "هتاف الجمهور"},
});

} // namespace vorbel::L10n::options
