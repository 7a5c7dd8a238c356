# SPDX-License-Identifier: MIT
"""The calendar engine for Python: load() gives the library with every function ready to call.

Records travel by value, bools are bools, and texts are str; GetConfigKey() releases its own. The functions, records
and constants are documented in <almara/almara.h>.
"""
import ctypes
import re


_TYPES = {"void": None, "int32_t": ctypes.c_int32, "bool": ctypes.c_bool,
          "char*": ctypes.c_void_p, "const char*": ctypes.c_char_p}


class _Record(ctypes.Structure):
    def __repr__(self):
        values = (f"{field}={getattr(self, field)}" for field, _ in self._fields_)
        return f"{type(self).__name__}({', '.join(values)})"


def _record(name, fields):
    _TYPES[name] = type(name, (_Record,),
                        {"_fields_": [(field, ctypes.c_int32) for field in fields.split()]})
    return _TYPES[name]


# --- written by scripts/interface: declarations
CCalendarSolarDate = _record(
    "CCalendarSolarDate", "year month day dayOfWeek")
CCalendarLunarDate = _record(
    "CCalendarLunarDate", "year month day reserved leap")
tagCalendarCell = _record(
    "tagCalendarCell", "year month day dayOfWeek weekNumber row column type")
tagWeekNumberSpan = _record(
    "tagWeekNumberSpan", "weekNumber secondWeekNumber rows")
AlmanacInstant = _record(
    "AlmanacInstant", "year month day dayOfWeek hour minute second offset uncertainty certain")

eCalendarWeekSunday = 0
eCalendarWeekMonday = 1
eCalendarWeekTuesday = 2
eCalendarWeekWednesday = 3
eCalendarWeekThursday = 4
eCalendarWeekFriday = 5
eCalendarWeekSaturday = 6
eCalendarItemEmpty = 1
eCalendarItemBlank = 2
eCalendarItemDay = 3
eCalendarItemToday = 4
eCalendarItemBreakDay = 5
eCalendarItemTodayBreakDay = 6
eCalendarItemMonthTitle = 7
eDispMonthRollingWeeks = 1
eDispMonthRollingTail = 2
eDispMonthWholeMonth = 3
eDispMonthDayStrip = 4
eWeekNumberCalcFromJan1 = 0
eWeekNumberCalcIso8601 = 1
eWeekNumberCalcFromStartWeek = 2
eLanguageChs = 1
eLanguageKor = 2
eLanguageUsa = 3
eLanguageCht = 4
eLanguageRus = 5
eLanguageDeu = 6
eLanguageJpn = 7
eLanguageEng = 8
eLanguageVit = 9
eLanguageTha = 10
eSekkiNone = -1
eSekkiMinorCold = 0
eSekkiMajorCold = 1
eSekkiStartOfSpring = 2
eSekkiRainWater = 3
eSekkiAwakeningOfInsects = 4
eSekkiSpringEquinox = 5
eSekkiClearAndBright = 6
eSekkiGrainRain = 7
eSekkiStartOfSummer = 8
eSekkiGrainBuds = 9
eSekkiGrainInEar = 10
eSekkiSummerSolstice = 11
eSekkiMinorHeat = 12
eSekkiMajorHeat = 13
eSekkiStartOfAutumn = 14
eSekkiEndOfHeat = 15
eSekkiWhiteDew = 16
eSekkiAutumnEquinox = 17
eSekkiColdDew = 18
eSekkiFrostsDescent = 19
eSekkiStartOfWinter = 20
eSekkiMinorSnow = 21
eSekkiMajorSnow = 22
eSekkiWinterSolstice = 23
eFestivalSolarNone = 0
eFestivalSolarNewYearsDay = 1000
eFestivalSolarWomensDay = 1001
eFestivalSolarAprilFoolsDay = 1002
eFestivalSolarHealthDay = 1003
eFestivalSolarEarthDay = 1004
eFestivalSolarLabourDay = 1005
eFestivalSolarChildrensDay = 1006
eFestivalSolarNoTobaccoDay = 1007
eFestivalSolarHalloween = 1008
eFestivalSolarThanksgiving = 1009
eFestivalSolarChristmasEve = 1010
eFestivalSolarChristmasDay = 1011
eFestivalSolarNewYearsEve = 1012
eFestivalSolarArborDay = 1013
eFestivalSolarValentinesDay = 1014
eFestivalSolarMothersDay = 1015
eFestivalSolarFathersDay = 1016
eFestivalSolarTeachersDay = 1017
eFestivalSolarConsumerRightsDay = 2000
eFestivalSolarYouthDay = 2001
eFestivalSolarPartyFoundationDay = 2002
eFestivalSolarArmyDay = 2003
eFestivalSolarNationalDayChs = 2004
eFestivalSolarPeaceMemorialDay = 2005
eFestivalSolarNationalDayCht = 2006
eFestivalSolarIndependenceMovementDay = 3000
eFestivalSolarChildrensDayKor = 3001
eFestivalSolarMemorialDayKor = 3002
eFestivalSolarLiberationDayKor = 3003
eFestivalSolarNationalFoundationDayKor = 3004
eFestivalSolarHangulDay = 3005
eFestivalSolarChristmasKor = 3006
eFestivalSolarIndependenceDay = 4000
eFestivalSolarMartinLutherKingDay = 4001
eFestivalSolarLaborDayUsa = 4002
eFestivalSolarEaster = 4003
eFestivalSolarGoodFriday = 4004
eFestivalSolarGanjitsu = 5000
eFestivalSolarComingOfAgeDay = 5001
eFestivalSolarFoundationDayJpn = 5002
eFestivalSolarHinamatsuri = 5003
eFestivalSolarShowaDay = 5004
eFestivalSolarConstitutionDayJpn = 5005
eFestivalSolarGreeneryDay = 5006
eFestivalSolarChildrensDayJpn = 5007
eFestivalSolarMarineDay = 5008
eFestivalSolarRespectForTheAgedDay = 5009
eFestivalSolarSportsDay = 5010
eFestivalSolarCultureDay = 5011
eFestivalSolarLabourThanksgivingDay = 5012
eFestivalSolarEmperorsBirthday = 5013
eFestivalSolarReunificationDay = 6000
eFestivalSolarHoChiMinhsBirthday = 6001
eFestivalSolarNationalDayVit = 6002
eFestivalLunarNone = 0
eFestivalLunarNewYearsDay = 20000
eFestivalLunarLanternFestival = 20001
eFestivalLunarDragonBoat = 20002
eFestivalLunarDoubleSeventh = 20003
eFestivalLunarGhostFestival = 20004
eFestivalLunarMidAutumn = 20005
eFestivalLunarDoubleNinth = 20006
eFestivalLunarLaba = 20007
eFestivalLunarLittleNewYear = 20008
eFestivalLunarNewYearsEve = 20009
eFestivalLunarBuddhasBirthday = 20010
eFestivalLunarHungKings = 20012
eAlmanacNone = 0
eAlmanacChina = 1
eAlmanacKorea = 2
eAlmanacVietnam = 3
eAlmanacJapan = 4
eAlmanacAnniversaryEveryYear = 0
eAlmanacAnniversaryLeapMonthOnly = 1
eAlmanacAnniversaryDay30Only = 2

_FUNCTIONS = """
const char* GetLibraryVersion(void);
int32_t native_add(int32_t a, int32_t b);
CCalendarSolarDate CreateSolarDate(int32_t year, int32_t month, int32_t day, int32_t week);
void InitCalendarLogicDt(int32_t language);
void Build(void);
void GotoToday(void);
void GotoPreviousPage(void);
void GotoNextPage(void);
void GotoSpecifiedDate(int32_t year, int32_t month, int32_t day);
void GotoTodayOffset(int32_t offset);
int32_t GetContentRows(void);
int32_t GetContentColumns(void);
tagCalendarCell GetContentItem(int32_t row, int32_t column);
ECalendarWeek GetCalendarWeekByColumns(int32_t column);
int32_t GetWeekNumberCount(void);
tagWeekNumberSpan GetWeekNumberItemWithIndex(int32_t index);
CCalendarSolarDate GetContentDate(void);
CCalendarSolarDate GetToday(void);
bool IsTodayInBoard(void);
CCalendarLunarDate ConverterLunarWithDate(CCalendarSolarDate date);
ESolarKyureki24 Check24SekkiWithDate(CCalendarSolarDate date);
EFestivalSolar CheckFestivalSolarWithLang(ELanguage language, CCalendarSolarDate date);
EFestivalLunar CheckFestivalLunarWithLang(ELanguage language, CCalendarSolarDate date);
EDispMonth GetDispMonth(void);
void SetDispMonth(EDispMonth mode);
int32_t GetMaxRow(void);
void SetMaxRow(int32_t rows);
int32_t GetPassedWeeks(void);
void SetPassedWeeks(int32_t weeks);
ECalendarWeek GetStartDayOfWeek(void);
void SetStartDayOfWeek(ECalendarWeek day);
int32_t GetStartWeekNumber(void);
void SetStartWeekNumber(int32_t week);
bool GetHideBreakDay(void);
void SetHideBreakDay(bool hide);
bool GetShowMonthInterval(void);
void SetShowMonthInterval(bool show);
bool GetShowBreakDayOfWeek(void);
void SetShowBreakDayOfWeek(bool show);
EWeekNumberCalc GetWeekNumberCalcType(void);
void SetWeekNumberCalcType(EWeekNumberCalc type);
bool GetCivilDays(void);
void SetCivilDays(bool on);
void SetBreakDayOfWeek(int32_t dayOfWeek, bool isBreak);
bool IsBreakDayOfWeek(int32_t dayOfWeek);
char* GetConfigKey(void);
void ReleaseText(char* text);
void ForgetAnnotations(void);
void SetPrintBoard(bool print);
bool GetPrintBoard(void);
EAlmanacCalendar AlmanacCalendarAtOffset(int32_t minutes);
EAlmanacCalendar AlmanacCalendarOfLanguage(ELanguage language);
CCalendarLunarDate AlmanacLunarDate(EAlmanacCalendar calendar, CCalendarSolarDate date);
CCalendarSolarDate AlmanacSolarDate(EAlmanacCalendar calendar, CCalendarLunarDate date);
CCalendarSolarDate AlmanacFirstDayOfYear(EAlmanacCalendar calendar, int32_t year);
int32_t AlmanacDaysOfYear(EAlmanacCalendar calendar, int32_t year);
int32_t AlmanacMonthsOfYear(EAlmanacCalendar calendar, int32_t year);
int32_t AlmanacLeapMonth(EAlmanacCalendar calendar, int32_t year);
int32_t AlmanacDaysOfMonth(EAlmanacCalendar calendar, int32_t year, int32_t month, int32_t leap);
CCalendarSolarDate AlmanacNextAnniversary(EAlmanacCalendar calendar, CCalendarLunarDate date, CCalendarSolarDate from, EAlmanacAnniversary rules);
AlmanacInstant AlmanacTermInstant(EAlmanacCalendar calendar, int32_t year, ESolarKyureki24 term);
AlmanacInstant AlmanacNewMoonOfYear(EAlmanacCalendar calendar, int32_t year, int32_t index);
AlmanacInstant AlmanacNewMoonOfMonth(EAlmanacCalendar calendar, int32_t year, int32_t month, int32_t leap);
ESolarKyureki24 AlmanacTermOfDate(EAlmanacCalendar calendar, CCalendarSolarDate date);
EFestivalLunar AlmanacLunarFestival(EAlmanacCalendar calendar, ELanguage language, CCalendarSolarDate date);
const char* AlmaraSolarTermName(ESolarKyureki24 term, ELanguage language);
const char* AlmaraSolarTermBriefName(ESolarKyureki24 term, ELanguage language);
const char* AlmaraFestivalName(int32_t festival, ELanguage language);
const char* AlmaraFestivalBriefName(int32_t festival, ELanguage language);
const char* AlmaraRegionName(ELanguage region, ELanguage language);
"""
# --- end


def _read_text(text, _function, _arguments):
    return text.decode() if text is not None else None


def _type(name):
    """The types whose name begins with E are integers that stand for a choice."""
    return ctypes.c_int32 if name.startswith("E") else _TYPES[name]


def load(path="libalmara.so.1"):
    """The engine. Without a path the library is looked for as the dynamic linker does it: in the
    folders of LD_LIBRARY_PATH, then where the system has its libraries."""
    library = ctypes.CDLL(path)
    for result, name, arguments in re.findall(r"(const char\*|\S+) (\w+)\((.*)\);", _FUNCTIONS):
        function = getattr(library, name)
        function.restype = _type(result)
        function.argtypes = [_type(argument.split()[0]) for argument in arguments.split(", ")
                             if argument != "void"]
        if result == "const char*":
            function.errcheck = _read_text

    def take_text(address, _function, _arguments):
        text = ctypes.string_at(address).decode() if address else None
        library.ReleaseText(address)
        return text

    library.GetConfigKey.errcheck = take_text
    return library
