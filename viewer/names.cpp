// SPDX-License-Identifier: MIT
#include "names.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string_view>

namespace almara::viewer {
namespace {

// A row of names: the code, English, and the other languages in the order of TextLanguage. A name
// of more than nine cells is followed by its brief form, after a bar. A language without a name
// never meets the code, or has taken over the English word.
struct Name {
  std::int32_t code;
  std::string_view english;
  std::string_view own[static_cast<std::size_t>(TextLanguage::kThai)];
};

// clang-format off
constexpr Name kSolarTerms[] = {
    // code, English, chs, cht, kor, jpn, vit, deu, rus, tha
    {eSekkiMinorCold,          "Minor Cold|Min. Cold", {"小寒", "小寒", "소한", "小寒", "Tiểu hàn", "Kleine Kälte|Kl. Kälte", "Малые холода|М. холода", "เสี่ยวหาน"}},
    {eSekkiMajorCold,          "Major Cold|Maj. Cold", {"大寒", "大寒", "대한", "大寒", "Đại hàn", "Große Kälte|Gr. Kälte", "Большие холода|Б. холода", "ต้าหาน"}},
    {eSekkiStartOfSpring,      "Start of Spring|Start Spr", {"立春", "立春", "입춘", "立春", "Lập xuân", "Frühlingsbeginn|Frühl.beg", "Начало весны|Нач.весны", "ลี่ชุน"}},
    {eSekkiRainWater,          "Rain Water|Rainwater", {"雨水", "雨水", "우수", "雨水", "Vũ thủy", "Regenwasser|Regenw.", "Дождевая вода|Дожд.вода", "อวี๋สุ่ย"}},
    {eSekkiAwakeningOfInsects, "Awakening of Insects|Awakening", {"惊蛰", "驚蟄", "경칩", "啓蟄", "Kinh trập", "Erwachen der Insekten|Erwachen", "Пробуждение насекомых|Пробужд.", "จิงเจ๋อ"}},
    {eSekkiSpringEquinox,      "Spring Equinox|Equinox", {"春分", "春分", "춘분", "春分", "Xuân phân", "Frühlingsäquinoktium|Frühl.äq.", "Весеннее равноденствие|Равноден.", "วสันตวิษุวัต"}},
    {eSekkiClearAndBright,     "Clear and Bright|Clear Brt", {"清明", "清明", "청명", "清明", "Thanh minh|Th. minh", "Klar und hell|Klar/hell", "Ясно и светло|Ясно", "ชิงหมิง"}},
    {eSekkiGrainRain,          "Grain Rain|GrainRain", {"谷雨", "穀雨", "곡우", "穀雨", "Cốc vũ", "Getreideregen|Getr.reg.", "Хлебные дожди|Хл. дожди", "กู๋อวี่"}},
    {eSekkiStartOfSummer,      "Start of Summer|Start Sum", {"立夏", "立夏", "입하", "立夏", "Lập hạ", "Sommerbeginn|Sommerbeg", "Начало лета|Нач. лета", "ลี่เซี่ย"}},
    {eSekkiGrainBuds,          "Grain Buds|GrainBuds", {"小满", "小滿", "소만", "小満", "Tiểu mãn", "Ährenknospen|Knospen", "Малое изобилие|М. изоб.", "เสี่ยวหม่าน"}},
    {eSekkiGrainInEar,         "Grain in Ear|Grain Ear", {"芒种", "芒種", "망종", "芒種", "Mang chủng|M. chủng", "Grannengetreide|Grannen", "Колошение хлебов|Колошение", "หมางจ้ง"}},
    {eSekkiSummerSolstice,     "Summer Solstice|Solstice", {"夏至", "夏至", "하지", "夏至", "Hạ chí", "Sommersonnenwende|Sonnenw.", "Летнее солнцестояние|Солнцест.", "ครีษมายัน"}},
    {eSekkiMinorHeat,          "Minor Heat|Min. Heat", {"小暑", "小暑", "소서", "小暑", "Tiểu thử", "Kleine Hitze|Kl. Hitze", "Малая жара|М. жара", "เสี่ยวสู่"}},
    {eSekkiMajorHeat,          "Major Heat|Maj. Heat", {"大暑", "大暑", "대서", "大暑", "Đại thử", "Große Hitze|Gr. Hitze", "Большая жара|Б. жара", "ต้าสู่"}},
    {eSekkiStartOfAutumn,      "Start of Autumn|Start Aut", {"立秋", "立秋", "입추", "立秋", "Lập thu", "Herbstbeginn|Herbstbeg", "Начало осени|Нач.осени", "ลี่ชิว"}},
    {eSekkiEndOfHeat,          "End of Heat|End Heat", {"处暑", "處暑", "처서", "処暑", "Xử thử", "Ende der Hitze|Hitzeende", "Прекращение жары|Спад жары", "ชู่สู่"}},
    {eSekkiWhiteDew,           "White Dew", {"白露", "白露", "백로", "白露", "Bạch lộ", "Weißer Tau|Weiß. Tau", "Белые росы|Бел. росы", "ไป๋ลู่"}},
    {eSekkiAutumnEquinox,      "Autumn Equinox|Equinox", {"秋分", "秋分", "추분", "秋分", "Thu phân", "Herbstäquinoktium|Herbstäq.", "Осеннее равноденствие|Равноден.", "ศารทวิษุวัต"}},
    {eSekkiColdDew,            "Cold Dew", {"寒露", "寒露", "한로", "寒露", "Hàn lộ", "Kalter Tau|Kalt. Tau", "Холодные росы|Хол. росы", "หานลู่"}},
    {eSekkiFrostsDescent,      "Frost's Descent|Frost", {"霜降", "霜降", "상강", "霜降", "Sương giáng|S. giáng", "Reiffall", "Выпадение инея|Иней", "ซวงเจี้ยง"}},
    {eSekkiStartOfWinter,      "Start of Winter|Start Win", {"立冬", "立冬", "입동", "立冬", "Lập đông", "Winterbeginn|Winterbeg", "Начало зимы|Нач. зимы", "ลี่ตง"}},
    {eSekkiMinorSnow,          "Minor Snow|Min. Snow", {"小雪", "小雪", "소설", "小雪", "Tiểu tuyết|T. tuyết", "Kleiner Schnee|Kl.Schnee", "Малые снега|М. снега", "เสี่ยวเสวี่ย"}},
    {eSekkiMajorSnow,          "Major Snow|Maj. Snow", {"大雪", "大雪", "대설", "大雪", "Đại tuyết", "Großer Schnee|Gr.Schnee", "Большие снега|Б. снега", "ต้าเสวี่ย"}},
    {eSekkiWinterSolstice,     "Winter Solstice|Solstice", {"冬至", "冬至", "동지", "冬至", "Đông chí", "Wintersonnenwende|Sonnenw.", "Зимнее солнцестояние|Солнцест.", "เหมายัน"}},
};

constexpr Name kSolarFestivals[] = {
    // Common
    {eFestivalSolarNewYearsDay,   "New Year's Day|New Year", {"元旦", "元旦", "새해 첫날", "元日", "Tết Dương lịch|Tết DL", "Neujahr", "Новый год", "วันขึ้นปีใหม่|ปีใหม่"}},
    {eFestivalSolarWomensDay,     "Women's Day|Women's", {"妇女节", "婦女節", "여성의 날", "国際女性デー|女性デー", "Quốc tế Phụ nữ|Phụ nữ", "Internationaler Frauentag|Frauentag", "Международный женский день|8 Марта", "วันสตรีสากล|วันสตรี"}},
    {eFestivalSolarAprilFoolsDay, "April Fools' Day|AprFools'", {"愚人节", "愚人節", "만우절", "エイプリルフール|四月馬鹿", "Cá tháng Tư|Cá th. Tư", "Tag der Aprilscherze|1. April", "День смеха|Д. смеха", "วันเมษาหน้าโง่|เมษาหน้าโง่"}},
    {eFestivalSolarHealthDay,     "World Health Day|Health", {"世界卫生日|卫生日", "世界衛生日|衛生日", "세계 보건의 날|보건의 날", "世界保健デー|保健デー", "Ngày Sức khỏe Thế giới|Sức khỏe", "Weltgesundheitstag|Ges.-tag", "Всемирный день здоровья|Д. здор.", "วันอนามัยโลก|อนามัยโลก"}},
    {eFestivalSolarEarthDay,      "Earth Day", {"地球日", "地球日", "지구의 날", "アースデー|地球の日", "Ngày Trái Đất|Trái Đất", "Tag der Erde|Erde", "День Земли|Д. Земли", "วันคุ้มครองโลก|คุ้มครอง"}},
    {eFestivalSolarLabourDay,     "Labour Day|Labour", {"劳动节", "勞動節", "근로자의 날|근로자", "メーデー", "Quốc tế Lao động|Lao động", "Tag der Arbeit|Arbeit", "Праздник Весны и Труда|1 Мая", "วันแรงงาน"}},
    {eFestivalSolarChildrensDay,  "Children's Day|Children", {"儿童节", "兒童節", "", "", "Quốc tế Thiếu nhi|Thiếu nhi", "Kindertag", "День защиты детей|Д. детей", "วันเด็กแห่งชาติ|วันเด็ก"}},
    {eFestivalSolarNoTobaccoDay,  "World No-Tobacco Day|NoTobacco", {"世界无烟日|无烟日", "世界無菸日|無菸日", "세계 금연의 날|금연의 날", "世界禁煙デー|禁煙デー", "Ngày Không Thuốc lá|Không TL", "Weltnichtrauchertag|Nichtrau.", "Всемирный день без табака|Без таб.", "วันงดสูบบุหรี่โลก|งดสูบ"}},
    {eFestivalSolarHalloween,     "Halloween", {"万圣夜", "萬聖夜", "핼러윈", "ハロウィン|ﾊﾛｳｨﾝ", "", "Halloween", "Хэллоуин", "ฮาโลวีน"}},
    {eFestivalSolarThanksgiving,  "Thanksgiving|Thanksgv.", {"感恩节", "感恩節", "추수감사절|감사절", "感謝祭", "Lễ Tạ ơn", "Thanksgiving|Thanksgv.", "День благодарения|Благодар.", "วันขอบคุณพระเจ้า|ขอบคุณ"}},
    {eFestivalSolarChristmasEve,  "Christmas Eve|Xmas Eve", {"平安夜", "平安夜", "크리스마스이브|성탄 전야", "クリスマスイブ|イブ", "Đêm Giáng sinh|Đêm Noel", "Heiligabend|Heiligab.", "Католический сочельник|Сочельник", "วันคริสต์มาสอีฟ|คริสต์อีฟ"}},
    {eFestivalSolarChristmasDay,  "Christmas Day|Christmas", {"圣诞节", "聖誕節", "크리스마스|성탄절", "クリスマス|ｸﾘｽﾏｽ", "Lễ Giáng sinh|Noel", "Erster Weihnachtstag|Weihnacht", "Католическое Рождество|Рождество", "วันคริสต์มาส|คริสต์มาส"}},
    {eFestivalSolarNewYearsEve,   "New Year's Eve|NY's Eve", {"跨年夜", "跨年夜", "제야", "大晦日", "Giao thừa Dương lịch|Giao thừa", "Silvester", "Канун Нового года|Канун НГ", "วันสิ้นปี"}},
    {eFestivalSolarArborDay,      "Arbor Day", {"植树节", "植樹節", "식목일", "", ""}},
    {eFestivalSolarValentinesDay, "Valentine's Day|Valentine", {"情人节", "情人節", "", "", ""}},
    {eFestivalSolarMothersDay,    "Mother's Day|Mother's", {"母亲节", "母親節", "", "", ""}},
    {eFestivalSolarFathersDay,    "Father's Day|Father's", {"父亲节", "父親節", "", "", ""}},
    {eFestivalSolarTeachersDay,   "Teachers' Day|Teachers'", {"教师节", "教師節", "", "", ""}},
    // Chinese
    {eFestivalSolarConsumerRightsDay,  "Consumer Rights Day|Consumers", {"消费者权益日|消费者日", "", "", "", ""}},
    {eFestivalSolarYouthDay,           "Youth Day", {"青年节", "", "", "", ""}},
    {eFestivalSolarPartyFoundationDay, "Party Foundation Day|Party Day", {"建党节", "", "", "", ""}},
    {eFestivalSolarArmyDay,            "Army Day", {"建军节", "", "", "", ""}},
    {eFestivalSolarNationalDayChs,     "National Day|National", {"国庆节", "", "", "", ""}},
    {eFestivalSolarPeaceMemorialDay,   "Peace Memorial Day|Peace Day", {"", "和平紀念日|和平紀念", "", "", ""}},
    {eFestivalSolarNationalDayCht,     "National Day|National", {"", "國慶日", "", "", ""}},
    // Korean
    {eFestivalSolarIndependenceMovementDay,  "Independence Movement Day|March 1st", {"", "", "삼일절", "", ""}},
    {eFestivalSolarChildrensDayKor,          "Children's Day|Children", {"", "", "어린이날", "", ""}},
    {eFestivalSolarMemorialDayKor,           "Memorial Day|Memorial", {"", "", "현충일", "", ""}},
    {eFestivalSolarLiberationDayKor,         "Liberation Day|Liberat.", {"", "", "광복절", "", ""}},
    {eFestivalSolarNationalFoundationDayKor, "National Foundation Day|Foundat.", {"", "", "개천절", "", ""}},
    {eFestivalSolarHangulDay,                "Hangul Day|Hangul", {"", "", "한글날", "", ""}},
    {eFestivalSolarChristmasKor,             "Christmas Day|Christmas", {"", "", "성탄절", "", ""}},
    // United States
    {eFestivalSolarIndependenceDay,     "Independence Day|July 4th", {}},
    {eFestivalSolarMartinLutherKingDay, "Martin Luther King Jr. Day|MLK Day", {}},
    {eFestivalSolarLaborDayUsa,         "Labor Day", {}},
    {eFestivalSolarEaster,              "Easter Sunday|Easter", {}},
    {eFestivalSolarGoodFriday,          "Good Friday|Good Fri.", {}},
    // Japanese
    {eFestivalSolarGanjitsu,              "New Year's Day|New Year", {"", "", "", "元日", ""}},
    {eFestivalSolarComingOfAgeDay,        "Coming of Age Day|Of Age", {"", "", "", "成人の日", ""}},
    {eFestivalSolarFoundationDayJpn,      "National Foundation Day|Foundat.", {"", "", "", "建国記念の日|建国", ""}},
    {eFestivalSolarHinamatsuri,           "Hinamatsuri|Dolls", {"", "", "", "ひな祭り", ""}},
    {eFestivalSolarShowaDay,              "Showa Day", {"", "", "", "昭和の日", ""}},
    {eFestivalSolarConstitutionDayJpn,    "Constitution Memorial Day|Constit.", {"", "", "", "憲法記念日|憲法", ""}},
    {eFestivalSolarGreeneryDay,           "Greenery Day|Greenery", {"", "", "", "みどりの日|みどり", ""}},
    {eFestivalSolarChildrensDayJpn,       "Children's Day|Children", {"", "", "", "こどもの日|こども", ""}},
    {eFestivalSolarMarineDay,             "Marine Day|Marine", {"", "", "", "海の日", ""}},
    {eFestivalSolarRespectForTheAgedDay,  "Respect for the Aged Day|The Aged", {"", "", "", "敬老の日", ""}},
    {eFestivalSolarSportsDay,             "Sports Day|Sports", {"", "", "", "スポーツの日|スポーツ", ""}},
    {eFestivalSolarCultureDay,            "Culture Day|Culture", {"", "", "", "文化の日", ""}},
    {eFestivalSolarLabourThanksgivingDay, "Labour Thanksgiving Day|Labour", {"", "", "", "勤労感謝の日|勤労感謝", ""}},
    {eFestivalSolarEmperorsBirthday,      "Emperor's Birthday|Emperor's", {"", "", "", "天皇誕生日|天皇誕生", ""}},
    // Vietnamese
    {eFestivalSolarReunificationDay,   "Reunification Day|Reunific.", {"", "", "", "", "Ngày Thống nhất|Th. nhất"}},
    {eFestivalSolarHoChiMinhsBirthday, "Ho Chi Minh's Birthday|Ho Ch. M.", {"", "", "", "", "Sinh nhật Hồ Chí Minh|SN Bác Hồ"}},
    {eFestivalSolarNationalDayVit,     "National Day|National", {"", "", "", "", "Quốc khánh|Q. khánh"}},
};

constexpr Name kLunarFestivals[] = {
    {eFestivalLunarNewYearsDay,     "Lunar New Year's Day|Lunar NY", {"春节", "春節", "설날", "", "Tết Nguyên Đán|Tết"}},
    {eFestivalLunarLanternFestival, "Lantern Festival|Lanterns", {"元宵节", "元宵節", "", "", "Rằm tháng Giêng|Rằm Giêng"}},
    {eFestivalLunarDragonBoat,      "Dragon Boat Festival|DragonBt.", {"端午节", "端午節", "", "", "Tết Đoan Ngọ|Đoan Ngọ"}},
    {eFestivalLunarDoubleSeventh,   "Double Seventh Festival|Double 7", {"七夕", "七夕", "", "", ""}},
    {eFestivalLunarGhostFestival,   "Ghost Festival|Ghosts", {"中元节", "中元節", "", "", "Lễ Vu Lan"}},
    {eFestivalLunarMidAutumn,       "Mid-Autumn Festival|MidAutumn", {"中秋节", "中秋節", "추석", "", "Tết Trung thu|Trung thu"}},
    {eFestivalLunarDoubleNinth,     "Double Ninth Festival|Double 9", {"重阳节", "重陽節", "", "", "Tết Trùng Cửu|Trùng Cửu"}},
    {eFestivalLunarLaba,            "Laba Festival|Laba", {"腊八节", "臘八節", "", "", ""}},
    {eFestivalLunarLittleNewYear,   "Little New Year|Little NY", {"小年", "", "", "", ""}},
    {eFestivalLunarNewYearsEve,     "Lunar New Year's Eve|LunarEve", {"除夕", "除夕", "", "", "Giao thừa"}},
    {eFestivalLunarBuddhasBirthday, "Buddha's Birthday|Buddha's", {"", "", "부처님 오신 날|석탄일", "", ""}},
    {eFestivalLunarHungKings,       "Hung Kings' Festival|HungKings", {"", "", "", "", "Giỗ Tổ Hùng Vương|Giỗ Tổ"}},
};
// clang-format on

template <typename Table>
const Name* Find(const Table& table, std::int32_t code) {
  const auto found = std::find_if(std::begin(table), std::end(table),
                                  [code](const Name& name) { return name.code == code; });
  return found == std::end(table) ? nullptr : &*found;
}

// The entry in the language, brief form and all; empty for a code that is not in the table.
template <typename Table>
std::string_view EntryIn(const Table& table, std::int32_t code, TextLanguage language) {
  const Name* name = Find(table, code);
  if (name == nullptr) {
    return {};
  }
  const std::string_view own = language == TextLanguage::kEnglish
                                   ? std::string_view{}
                                   : name->own[static_cast<std::size_t>(language) - 1];
  return own.empty() ? name->english : own;
}

template <typename Table>
std::string NameIn(const Table& table, std::int32_t code, TextLanguage language) {
  const std::string_view entry = EntryIn(table, code, language);
  return entry.empty() ? std::to_string(code) : std::string(entry.substr(0, entry.find('|')));
}

template <typename Table>
std::string BriefIn(const Table& table, std::int32_t code, TextLanguage language) {
  const std::string_view entry = EntryIn(table, code, language);
  const std::size_t bar = entry.find('|');
  return bar == std::string_view::npos ? NameIn(table, code, language)
                                       : std::string(entry.substr(bar + 1));
}

}  // namespace

std::string SolarTermName(ESolarKyureki24 term, TextLanguage language) {
  return NameIn(kSolarTerms, term, language);
}

std::string SolarFestivalName(EFestivalSolar festival, TextLanguage language) {
  return NameIn(kSolarFestivals, festival, language);
}

std::string LunarFestivalName(EFestivalLunar festival, TextLanguage language) {
  return NameIn(kLunarFestivals, festival, language);
}

std::string SolarTermBrief(ESolarKyureki24 term, TextLanguage language) {
  return BriefIn(kSolarTerms, term, language);
}

std::string SolarFestivalBrief(EFestivalSolar festival, TextLanguage language) {
  return BriefIn(kSolarFestivals, festival, language);
}

std::string LunarFestivalBrief(EFestivalLunar festival, TextLanguage language) {
  return BriefIn(kLunarFestivals, festival, language);
}

}  // namespace almara::viewer
