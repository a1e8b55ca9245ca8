/* TorvanSvilSist.h - the plain C face of the development library TorvanSvilSist.
 *
 * A development takes a system file (class, reduction, picks, recovery board, compiled conditions) and appends to the
 * file "Sviluppo.col" of a folder every column of the class over the picks that passes all conditions, in lexicographic
 * order of the picks, 20 bytes each. Columns that share too many numbers with the one kept just before are thinned out,
 * as the reduction says.
 *
 * All processors of the machine take part, or as many threads as the environment variable ORDAVEL_THREADS says, 1 to
 * 256; of any other value it is said on the error stream that it is not taken.
 *
 * One development runs at a time in a process. The last three functions may be called from any thread at any time.
 */
#ifndef TORVANSVILSIST_H
#define TORVANSVILSIST_H

#ifdef __cplusplus
extern "C" {
#endif

/* Develops the system fileSistema, and returns when it is done.
 *
 * percorsoTemp: the folder of "Sviluppo.col", with or without a separator at its end. fileEmulatore: the draws of the
 * emulator, 91 bytes each, or "-"; without it, or when the file is missing, there is one draw without a hit. The texts
 * are paths as the file system takes them, and are never rewritten.
 *
 * The conditions begin with counters of 0, whatever the file holds. At the end the file gets the counters, values and
 * verdicts of each condition as the last column left them; all else in it stays as it was.
 *
 * Returns 0, also after a stop, or the number of the failure: 5 a path is missing, 6 too many draws, 7 not enough
 * memory, 9 a value that a condition has no place for, a class outside 1 to 20 or a system file of no known length,
 * 11 a modulus of 0 or fewer picks than the class, 53 no system file, 57 a read or write failed, 61 disk full, 70 no
 * permission or a development is already running, 75 something is not a plain file, 76 no such folder.
 *
 * A failure leaves whole columns, the first ones in order, and in the system file the counters up to there. Its reason
 * goes to the error stream and to the file "Sviluppo.err" beside the columns, one line; any other run leaves no file of
 * that name, but for this: in a system of more than ten thousand million columns the emulator, and a condition whose
 * states find no room, count the columns alone that had to be looked at. The file then says so, and 0 is returned.
 */
int InitSviluppo(char* percorsoTemp, char* fileSistema, char* fileEmulatore);

/* Columns examined so far, of the running development or of the last. */
double GetSviluppate(void);

/* Columns kept so far, of the same. */
double GetCondizionate(void);

/* Asks the running development to end at once: the columns and counters that it has come to stay. Without a running
 * development nothing happens. */
void StopSviluppo(void);

#ifdef __cplusplus
}
#endif

#endif
