// The options in Hindi.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::options {

inline constexpr auto hi = std::to_array<Text>({
    {"menu.options", "विकल्प"},

    {"options.throw", "थ्रो"},
    {"options.powerPace", "ताकत घटने-बढ़ने की गति"},
    {"options.powerPace.help", "थ्रो से पहले ताकत धीरे-धीरे घटती-बढ़ती है, या तीर वाली कुंजियों से तय की जाती है।"},
    {"options.asUsual", "सामान्य"},
    {"options.byKeys", "कुंजियों से"},
    {"options.fineAim", "बारीक निशाना, वापस लेना"},
    {"options.fineAim.help",
     "शिफ़्ट दबाकर तीरों से निशाना थोड़ा-थोड़ा बदलें। [बैकस्पेस] से पहले ताकत, फिर निशाना वापस लें।"},

    {"options.oneSwitch", "एक स्विच"},
    {"options.switchOn", "एक ही स्विच से खेलें"},
    {"options.switchOn.help", "विकल्प अपने आप बारी-बारी से आते हैं; एक कुंजी, क्लिक या बटन से चुनें।"},
    {"options.switchPace", "हर विकल्प का समय"},
    {"options.switchPace.help", "हर विकल्प चुनने के लिए कितना समय मिले।"},
    {"options.switchAsks", "थ्रो से पहले पूछें"},
    {"options.switchAsks.help", "गेंद छोड़ने से पहले फिर से निशाना साधने का मौका मिलता है।"},
    {"options.switchRest", "दबाने के बाद विराम"},
    {"options.switchRest.help", "इतने समय के भीतर दोबारा दबाया तो गिना नहीं जाता।"},
    {"options.switchKey", "एक और कुंजी"},
    {"options.switchKey.help", "स्विच का काम करने वाली एक और कुंजी: इसे चुनें, फिर वह कुंजी दबाएँ।"},
    {"options.pressKey", "कोई कुंजी दबाएँ..."},
    {"options.none", "कोई नहीं"},
    {"options.seconds.format", "%@ सेकंड"},

    {"options.devices", "माउस और कंट्रोलर"},
    {"options.courtButtons", "कोर्ट पर बटन"},
    {"options.courtButtons.help", "कोर्ट के किनारे बने बड़े बटनों से निशाना साधें, थ्रो करें और वापस लें।"},
    {"options.controller", "कंट्रोलर"},
    {"options.controller.help", "गेम कंट्रोलर और स्विच इंटरफ़ेस से निशाना साधें, थ्रो करें और चुनें।"},

    {"options.voice", "आवाज़ और सुर"},
    {"options.speech", "बोलकर बताएँ"},
    {"options.speech.help", "संदेश, निशाना और गेंदों की जगह बोलकर बताई जाती है। [W] कुंजी से फिर सुनें।"},
    {"aim.everything", "जगहें बताएँ"},
    {"options.tones", "निशाने के सुर"},
    {"options.tones.help", "ताकत बढ़ने पर सुर ऊँचा होता है और कोण के साथ बाएँ से दाएँ जाता है।"},
    {"options.hitPlaces", "टक्कर स्टीरियो में"},
    {"options.hitPlaces.help", "टक्कर की आवाज़ कोर्ट की उसी तरफ़ से आती है जहाँ गेंदें टकराती हैं।"},

    {"options.sight", "देखने में मदद"},
    {"options.textSize", "अक्षरों का आकार"},
    {"options.textSize.help", "सभी अक्षर कितने बड़े हों।"},
    {"options.ballMarks", "गेंदों पर चिह्न"},
    {"options.ballMarks.help", "लाल गेंदों पर छल्ले और नीली गेंदों पर क्रॉस होते हैं।"},
    {"options.ballOutlines", "गेंदों के चारों ओर रेखा"},
    {"options.ballOutlines.help", "रेखा से हर गेंद कोर्ट से अलग दिखती है।"},
    {"options.clearPointer", "निशाने की सफ़ेद रेखा"},
    {"options.clearPointer.help", "निशाने की रेखा सफ़ेद होती है और उसका किनारा काला।"},
    {"options.solidPanels", "ठोस पैनल"},
    {"options.solidPanels.help", "स्क्रीन के पैनलों के आर-पार कुछ नहीं दिखता।"},

    {"options.sound", "ध्वनि"},
    {"options.mute", "आवाज़ बंद"},
    {"options.mute.help", "सारी आवाज़ें बंद हो जाती हैं। [M] कुंजी भी यही करती है।"},
    {"options.crowdVolume", "दर्शकों की आवाज़"},
    {"options.crowdVolume.help", "दर्शकों की आवाज़ कितनी तेज़ हो।"},
    {"options.effectVolume", "गेम की आवाज़"},
    {"options.effectVolume.help", "थ्रो, टक्कर और परिणाम की आवाज़ कितनी तेज़ हो।"},
    {"options.soundNotes", "आवाज़ें लिखकर दिखाएँ"},
    {"options.soundNotes.help", "जो भी आवाज़ आए, उसका नाम स्क्रीन पर दिखता है।"},

    {"options.rest", "आराम और सुरक्षा"},
    {"options.menuPauses", "मेनू खुलने पर मैच रुके"},
    {"options.menuPauses.help", "जब तक मेनू खुला है, मैच रुका रहता है।"},
    {"options.askToLeave", "निकलने से पहले पूछें"},
    {"options.askToLeave.help", "मैच के बीच विंडो बंद करने पर पहले पूछा जाता है।"},

    {"leave.question", "मैच अभी पूरा नहीं हुआ। फिर भी बाहर निकलें?"},
    {"leave.leave", "बाहर निकलें"},
    {"leave.cancel", "रद्द करें"},

    {"aim.left", "बाएँ"},
    {"aim.right", "दाएँ"},
    {"aim.up", "ऊपर"},
    {"aim.down", "नीचे"},
    {"aim.ok", "ठीक है"},
    {"aim.takeBack", "वापस लें"},
    {"aim.powerByKeys", "[↑][↓] से ताकत तय करें। [स्पेस] से थ्रो करें"},

    {"switch.begin", "निशाना साधने के लिए दबाएँ"},
    {"switch.angle", "दिशा सही होते ही दबाएँ"},
    {"switch.pitch", "ऊँचाई सही होते ही दबाएँ"},
    {"switch.power", "ताकत सही होते ही दबाएँ"},
    {"switch.throw", "थ्रो करने के लिए दबाएँ"},
    {"switch.again", "फिर से निशाना साधने के लिए दबाएँ"},
    {"switch.goOn", "आगे बढ़ने के लिए दबाएँ"},
    {"switch.resting", "फिर से चुनने के लिए दबाएँ"},

    {"key.space", "स्पेस"},

    {"controls.title", "कुंजियाँ और बटन"},
    {"controls.help", "+ चुनें, फिर कोई कुंजी या बटन दबाएँ: हर काम के लिए तीन तक। हटाने के लिए उसी को चुनें।"},
    {"controls.keyboard", "कीबोर्ड"},
    {"controls.accept", "निशाना, थ्रो, ठीक है"},
    {"controls.everything", "सब कुछ कहाँ है"},
    {"controls.addKey", "कुंजी जोड़ें"},
    {"controls.addButton", "बटन जोड़ें"},
    {"controls.pressButton", "कोई बटन दबाएँ..."},
    {"controls.moved.format", "%@ अब “%@” के लिए है, “%@” के लिए नहीं।"},
    {"controls.needed.format", "%@ बना रहेगा: “%@” के लिए और कुछ नहीं है।"},
    {"controls.reserved.format", "%@ मेनू के लिए है।"},
    {"controls.reset", "सामान्य कुंजियाँ लौटाएँ"},
    {"button.cross", "क्रॉस"},
    {"button.circle", "गोला"},
    {"button.square", "चौकोर"},
    {"button.triangle", "तिकोन"},
    {"button.number.format", "बटन %@"},

    {"sound.throw", "थ्रो"},
    {"sound.hit", "गेंद से गेंद टकराई"},
    {"sound.victory", "दर्शकों की जयकार"},
});

} // namespace vorbel::L10n::options
