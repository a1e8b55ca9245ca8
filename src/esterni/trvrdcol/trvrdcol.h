/* trvrdcol.h - the plain C face of the reduction library trvrdcol.
 *
 * A reduction takes a file of columns, 20 bytes each, and writes a file that holds some of them: every column of the
 * input has at least *pnPuntiRichiesti numbers in common with a column of the output, and the output is as small as
 * the time allows. The numbers of a column are its first N bytes; N, the class, is the last position of the first
 * column whose byte is not 0. Only 1 to 90 are numbers, and one that stands twice in a column counts once.
 *
 * How long the library looks for a smaller output is told by the environment variable ORDAVEL_RIDUZIONE_SECONDI,
 * 60 when it is missing or not a number; with 0 it takes the first output that it finds. It ends earlier when nothing
 * more is to be gained.
 *
 * One reduction runs at a time in a process. The last two functions may be called from any thread at any time.
 */
#ifndef TRVRDCOL_H
#define TRVRDCOL_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Reduces the file *psInput into the file *psOutput, and returns when it is done. The paths are never rewritten. They
 * may be the same: the output takes its place only when it is complete and its cover was checked.
 *
 * *pnPuntiRichiesti of 0 or less: one column is enough. Above the class: the whole input stays.
 *
 * Returns 0, or the number of the failure, and then the output is as it was before: 5 no path or number given,
 * 7 not enough memory, 53 no input, 57 a read or write failed, 61 disk full, 70 no permission or a reduction is already
 * running, 75 the input is not a plain file, 76 no folder for the output.
 */
int RiduzioneColonneDll(const char** psInput, const char** psOutput, const int32_t* pnPuntiRichiesti);

/* How far the running reduction has come, 0 to 100: 0 before the first one, 100 after the end of the last. */
int16_t GetPercProgRiduzione(void);

/* Asks the running reduction to come to its end soon. What it writes then is a full cover, only larger. Without a
 * running reduction nothing happens. */
void StopRiduzioneDll(void);

#ifdef __cplusplus
}
#endif

#endif
