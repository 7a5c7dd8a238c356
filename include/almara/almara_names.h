/* SPDX-License-Identifier: MIT */
/** @file
 * Names of solar terms, festivals and regions, for hosts that show them.
 *
 * There are tables in English, Chinese (simplified and traditional), Korean, Japanese, Vietnamese,
 * German, Russian and Thai. ::ELanguage chooses one; eLanguageUsa, eLanguageEng and any int that is
 * no ::ELanguage choose English. Every table has all solar terms, all regions, and the festivals of
 * all regions.
 *
 * A name is a static text in UTF-8, one line without control characters, the same one at every call
 * and never to be freed. The English ones are ASCII. A later release may word a name otherwise: to
 * tell festivals apart, compare codes.
 *
 * Every function is pure: it depends on its arguments alone, needs no InitCalendarLogicDt(), keeps
 * nothing, allocates nothing, takes no lock and writes nothing. It may be called from any thread at
 * any time, and every int is a legal argument. All since 1.1.
 *
 *     AlmaraSolarTermName(eSekkiWinterSolstice, eLanguageDeu)      "Wintersonnenwende"
 *     AlmaraSolarTermBriefName(eSekkiWinterSolstice, eLanguageDeu) "Sonnenw."
 *     AlmaraFestivalName(eFestivalLunarMidAutumn, eLanguageKor)    "추석"
 *     AlmaraFestivalName(eFestivalSolarNone, eLanguageKor)         NULL
 */
#ifndef ALMARA_ALMARA_NAMES_H_
#define ALMARA_ALMARA_NAMES_H_

#include <almara/almara.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Names ----------------------------------------------------------------------------------- */

/**
 * The name of a solar term.
 *
 * @param term ::ESolarKyureki24, 0 to 23
 * @param language ::ELanguage, whose table
 * @return NULL for any other term, -1 included
 */
ALMARA_EXPORT const char* AlmaraSolarTermName(ESolarKyureki24 term, ELanguage language);

/**
 * As AlmaraSolarTermName(), in at most nine cells of a terminal (a Chinese character takes two), to
 * stand under a day: the name itself, or a short form where it is longer.
 */
ALMARA_EXPORT const char* AlmaraSolarTermBriefName(ESolarKyureki24 term, ELanguage language);

/**
 * The name of a festival.
 *
 * @param festival ::EFestivalSolar or ::EFestivalLunar, whose codes never coincide
 * @param language ::ELanguage, whose table
 * @return NULL for any int that is none of these codes, 0 (no festival) included
 */
ALMARA_EXPORT const char* AlmaraFestivalName(int32_t festival, ELanguage language);

/** As AlmaraFestivalName(), in at most nine cells, as for AlmaraSolarTermBriefName(). */
ALMARA_EXPORT const char* AlmaraFestivalBriefName(int32_t festival, ELanguage language);

/**
 * The name of a region, for a menu: that of its language. With the region itself as language it is
 * what its speakers call it.
 *
 * @param region ::ELanguage, 1 to 10
 * @param language ::ELanguage, whose table
 * @return NULL for any other region
 */
ALMARA_EXPORT const char* AlmaraRegionName(ELanguage region, ELanguage language);

#ifdef __cplusplus
}
#endif

#endif /* ALMARA_ALMARA_NAMES_H_ */
