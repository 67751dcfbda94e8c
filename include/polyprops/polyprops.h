/* clang-format off */
/* The exported routines of libpolyprops. Made by scripts/generate.py from src/exports/routines.toml.
 *
 * Every argument is an address. Integers are 64-bit, reals are doubles; arrays and component indices count
 * from 1, matrices are column-major with the leading dimension first. Argument lines read
 *   NAME(shape)  direction  meaning [unit]
 * with the shapes "component" (by component index 1..NC), "segment" (by position in the host's segment list)
 * and "*" (as far as the routine's rule reaches). Work arguments are undefined afterwards; unused ones are
 * never read and may be null. No routine reports an error unless it says so: values that cannot be used fall
 * back as its notes tell. A parameter or a molecular weight without further words is the pure-component
 * parameter of the host.
 *
 * The loading process defines the names of polyprops/host.h.
 */
#ifndef POLYPROPS_POLYPROPS_H
#define POLYPROPS_POLYPROPS_H

#include <stdint.h>

#if defined(__GNUC__)
#define POLYPROPS_API __attribute__((visibility("default")))
#else
#define POLYPROPS_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- chain averages ------------------------------------------------------------------------------------ */

/* Number-average degree of polymerization (segments per chain) of listed components.
 *
 *   DPN(i) = max(1, F / Z) for a polymer without a "DPN" attribute
 *   F = FMOM, else Σ SFLOW(s) over s = 1..NSEG
 *   Z = ZMOM, else 0.5 Σ SFLOW(e) over e = 1..min(NEND, NSEG)
 *
 *   SEL     in      attribute selector, passed on to the host's attribute search
 *   N       in      number of listed components
 *   IDX(N)  in      component index of each entry
 *   DPN(N)  out     segments per chain, by position [1]
 *
 * - Without a polymer block, or with neither polymers (by the polymer count of the host) nor oligomers in the
 *   run, every entry is its DPN parameter as it stands, also below 1; 1.0 when the parameter vector does not
 *   exist. In every other case no result is below 1.0.
 * - A polymer that carries "DPN": the attribute when 1.0 < value < missing-value bound, otherwise the DPN
 *   parameter; its moments are then not consulted, and exactly 1.0 is not usable.
 * - A polymer without "DPN": 1.0 unless both Z and F are above the zero bound.
 * - The estimate of Z without "ZMOM" takes SFLOW at the entry numbers of the end-segment list: it is half the
 *   flow of the end segments when these lead the segment list.
 * - An attribute that the polymer does not carry counts as 0.
 * - An oligomer whose DPN parameter is within 1e-10 of 1: its segment count from the oligomer list, if it is
 *   in that list. Any other oligomer, and a conventional component: the DPN parameter.
 * - N < 1: nothing is written.
 * - A NaN found for a component of a run with chains gives 1.0.
 * - An oligomer that stands twice in the oligomer list takes its first entry.
 */
POLYPROPS_API void POLY_GETDPN(const int64_t* sel, const int64_t* n, const int64_t* idx, double* dpn);

/* Number-average degree of polymerization from a segment-count matrix.
 *
 *   DPN(i) = Σ_m SCM(j, ISEG(m)) for a flagged component j = IDX(i), SCM(j, 1) otherwise
 *
 *   LD                in      leading dimension of SCM
 *   NSEG              in      number of segments; below 1 every sum is 0
 *   ISEG(NSEG)        in      component index of each segment
 *   SCM(LD,*)         in      segments of component k per molecule of j [1]
 *   N                 in      number of listed components
 *   IDX(N)            in      component index of each entry
 *   DPN(N)            out     segments per chain, by position [1]
 *   IFLAG(component)  in      1 marks a polymer or oligomer; no other value does
 *
 * - Reads nothing but its arguments.
 * - N < 1: nothing is written.
 */
POLYPROPS_API void POLY_GETDPN1(const int64_t* ld, const int64_t* nseg, const int64_t* iseg,
                                const double* scm, const int64_t* n, const int64_t* idx, double* dpn,
                                const int64_t* iflag);

/* Number-average degree of polymerization from a segment-count matrix; the same as POLY_GETDPN1.
 *
 *   DPN(i) = Σ_m SCM(j, ISEG(m)) for a flagged component j = IDX(i), SCM(j, 1) otherwise
 *
 *   LD                in      leading dimension of SCM
 *   NSEG              in      number of segments; below 1 every sum is 0
 *   ISEG(NSEG)        in      component index of each segment
 *   SCM(LD,*)         in      segments of component k per molecule of j [1]
 *   N                 in      number of listed components
 *   IDX(N)            in      component index of each entry
 *   DPN(N)            out     segments per chain, by position [1]
 *   IFLAG(component)  in      1 marks a polymer or oligomer; no other value does
 *
 * - Reads nothing but its arguments.
 * - N < 1: nothing is written.
 */
POLYPROPS_API void POLY_GETDPN2(const int64_t* ld, const int64_t* nseg, const int64_t* iseg,
                                const double* scm, const int64_t* n, const int64_t* idx, double* dpn,
                                const int64_t* iflag);

/* Mean segment molecular weight of listed components.
 *
 *   MRF(i) = Σ MW(s) f(s) / Σ f(s) for a polymer, f = SFRAC, else SFLOW
 *   MRF(i) = Σ MW(s) count(s, k) / Σ count(s, k) for the k-th oligomer of the run
 *
 *   SEL     in      attribute selector, passed on to the host's attribute search
 *   N       in      number of listed components
 *   IDX(N)  in      component index of each entry
 *   MRF(N)  out     molecular weight per segment, by position [g/mol]
 *
 * - Without a polymer block, or with neither polymers nor oligomers in the run, every entry is its molecular
 *   weight; so is a component that is neither a polymer nor in the oligomer list.
 * - A polymer that carries "MWSEG" with 1.0 < value < missing-value bound: that value.
 * - f is SFLOW only when the offset of "SFRAC" is exactly 0. An element of f at or above the missing-value
 *   bound counts as 1/NSEG; an attribute that is not carried counts as 0.
 * - Σ f(s) at or below the zero bound: the plain mean of the segment molecular weights. NSEG = 0: the polymer
 *   keeps its molecular weight.
 * - A polymer whose value came from f and that also stands in the oligomer list takes the value of the
 *   oligomer.
 * - An oligomer whose counts do not sum to more than 0: Σ MW(s) count(s, k), undivided.
 * - N < 1: nothing is written.
 * - Without a molecular-weight vector every molecular weight counts as 0.
 * - Whether the run has polymers is told by its polymer list here.
 * - A NaN sum of fractions gives the plain mean.
 * - A component that stands twice in the oligomer list takes its first entry; one whose counts vanish gets Σ
 *   MW(s) count(s), which is 0 without segments.
 */
POLYPROPS_API void POLY_GETMRF(const int64_t* sel, const int64_t* n, const int64_t* idx, double* mrf);

/* Number-average molecular weight of listed components.
 *
 *   MWN(i) = DPN(i) MRF(i) for a polymer or oligomer, the molecular weight otherwise
 *
 *   SEL     in      attribute selector, passed on to the host's attribute search
 *   N       in      number of listed components
 *   IDX(N)  in      component index of each entry
 *   MWN(N)  out     number-average molecular weight, by position [g/mol]
 *
 * - DPN and MRF as POLY_GETDPN and POLY_GETMRF give them, with all their fallbacks.
 * - Without a polymer block every entry is its molecular weight.
 * - N < 1: nothing is written.
 * - Without a molecular-weight vector every molecular weight counts as 0.
 */
POLYPROPS_API void POLY_GETMWN(const int64_t* sel, const int64_t* n, const int64_t* idx, double* mwn);

/* Number-average molecular weight from a segment-count matrix.
 *
 *   MWN(i) = Σ_m MW(ISEG(m)) SCM(j, ISEG(m)) for a flagged component j = IDX(i), MW(j) otherwise
 *
 *   LD                in      leading dimension of SCM
 *   MW(component)     in      molecular weights, segments included [g/mol]
 *   NSEG              in      number of segments; below 1 every sum is 0
 *   ISEG(NSEG)        in      component index of each segment
 *   SCM(LD,*)         in      segments of component k per molecule of j [1]
 *   N                 in      number of listed components
 *   IDX(N)            in      component index of each entry
 *   MWN(N)            out     number-average molecular weight, by position [g/mol]
 *   IFLAG(component)  in      1 marks a polymer or oligomer; no other value does
 *
 * - Reads nothing but its arguments.
 * - N < 1: nothing is written.
 */
POLYPROPS_API void POLY_GETMWN1(const int64_t* ld, const double* mw, const int64_t* nseg, const int64_t* iseg,
                                const double* scm, const int64_t* n, const int64_t* idx, double* mwn,
                                const int64_t* iflag);

/* Number-average molecular weight of listed components straight from segment flows and zeroth moment.
 *
 *   MRT(i) = Σ MW(s) SFLOW(s) / ZMOM for a polymer, the molecular weight otherwise
 *
 *   SEL     in      attribute selector, passed on to the host's attribute search
 *   N       in      number of listed components
 *   IDX(N)  in      component index of each entry
 *   MRT(N)  out     number-average molecular weight, by position [g/mol]
 *
 * - Without a polymer block or without polymers in the run every entry is its molecular weight; so are
 *   oligomers.
 * - A polymer keeps its molecular weight unless it carries "ZMOM", zero bound < ZMOM < missing-value bound
 *   and Σ MW(s) SFLOW(s) > zero bound. "SFLOW" not carried counts as 0.
 * - N < 1: nothing is written.
 * - Without a molecular-weight vector every molecular weight counts as 0.
 */
POLYPROPS_API void POLY_GETMRT(const int64_t* sel, const int64_t* n, const int64_t* idx, double* mrt);

/* Weight-average molecular weight of listed components.
 *
 *   MWW(i) = PDI(i) MWN(i) for a polymer or oligomer, PDI parameter × molecular weight otherwise
 *
 *   SEL     in      attribute selector, passed on to the host's attribute search
 *   N       in      number of listed components
 *   IDX(N)  in      component index of each entry
 *   MWW(N)  out     weight-average molecular weight, by position [g/mol]
 *
 * - PDI and MWN as POLY_GETPDI and POLY_GETMWN give them, with all their fallbacks.
 * - Without the PDI parameter vector a PDI parameter is 1.0.
 * - N < 1: nothing is written.
 * - Without a molecular-weight vector every molecular weight counts as 0.
 */
POLYPROPS_API void POLY_GETMWW(const int64_t* sel, const int64_t* n, const int64_t* idx, double* mww);

/* Polydispersity index (weight-average over number-average molecular weight) of listed components.
 *
 *   PDI(i) = (SMOM / F) / (F / ZMOM) = SMOM ZMOM / F² for a polymer, the PDI parameter otherwise
 *   F = Σ SFLOW(s) over s = 1..NSEG; FMOM is not read
 *
 *   SEL     in      attribute selector, passed on to the host's attribute search
 *   N       in      number of listed components
 *   IDX(N)  in      component index of each entry
 *   PDI(N)  out     polydispersity index, by position [1]
 *
 * - Without the PDI parameter vector a PDI parameter is 1.0.
 * - Without a polymer block, without polymers in the run, or with the host's PDI mode at 100, every entry is
 *   its PDI parameter; so are oligomers.
 * - A polymer keeps its PDI parameter unless it carries "SMOM" and "ZMOM", zero bound < ZMOM < missing-value
 *   bound, and both F and Σ MW(s) SFLOW(s) are at or above the zero bound. "SFLOW" not carried counts as 0.
 * - N < 1: nothing is written.
 * - Without a molecular-weight vector every molecular weight counts as 0. A polymer then keeps its PDI
 *   parameter.
 * - Segment flows of exactly 0 keep the PDI parameter, also where the zero bound is 0.
 */
POLYPROPS_API void POLY_GETPDI(const int64_t* sel, const int64_t* n, const int64_t* idx, double* pdi);

/* Segment mole fractions of a polymer or oligomer.
 *
 *   SMF(s) = v(s) / Σ v
 *   v = SFRAC, else SFLOW of a polymer; segment counts of an oligomer
 *
 *   SEL           in      attribute selector, passed on to the host's attribute search
 *   C             in      component index
 *   SMF(segment)  out     mole fraction of each segment [1]
 *
 * - SMF stays untouched without a polymer block, without segments, with neither polymers nor oligomers in the
 *   run, and for a component that is neither a polymer nor in the oligomer list.
 * - v is SFLOW only when the offset of "SFRAC" is exactly 0. An element of a polymer at or above the
 *   missing-value bound counts as 0; so does every element of an attribute that is not carried.
 * - Equal shares 1/NSEG: a polymer whose sum is at or below the zero bound, an oligomer whose sum is exactly
 *   0.
 * - Whether the run has polymers is told by its polymer list.
 * - A component that stands twice in the oligomer list takes its first entry.
 * - A NaN among the values makes every fraction NaN.
 */
POLYPROPS_API void POLY_GETSMF(const int64_t* sel, const int64_t* c, double* smf);

/* Segment mass fractions of a polymer or oligomer.
 *
 *   SWF(s) = v(s) / Σ v
 *   v = SFLOW(s) MW(s) of a polymer; MW(s) × segment count of an oligomer
 *
 *   SEL           in      attribute selector, passed on to the host's attribute search
 *   C             in      component index
 *   SWF(segment)  out     mass fraction of each segment [1]
 *
 * - SWF stays untouched without a polymer block, without segments, with neither polymers nor oligomers in the
 *   run, and for a component that is neither a polymer nor in the oligomer list.
 * - "SFRAC" is not read. A product v(s) of a polymer at or above the missing-value bound counts as 0; so does
 *   every element of an "SFLOW" that is not carried.
 * - Equal shares 1/NSEG: a polymer whose sum is at or below the zero bound, an oligomer whose sum is exactly
 *   0.
 * - Whether the run has polymers is told by its polymer list.
 * - A component that stands twice in the oligomer list takes its first entry.
 * - A NaN among the values makes every fraction NaN.
 * - Without a molecular-weight vector every molecular weight counts as 0.
 */
POLYPROPS_API void POLY_GETSWF(const int64_t* sel, const int64_t* c, double* swf);

/* Segment mass fractions of listed components, one column each.
 *
 *   SWF(s, i) = the mass fraction of segment s in component IDX(i), as POLY_GETSWF gives it
 *
 *   SEL        in      attribute selector, passed on to the host's attribute search
 *   N          in      number of listed components
 *   LD         in      leading dimension of SWF, at least the number of segments
 *   IDX(N)     in      component index of each entry
 *   SWF(LD,N)  out     mass fractions by segment position; column i belongs to entry i [1]
 *
 * - A component for which POLY_GETSWF writes nothing leaves its column untouched; rows beyond the number of
 *   segments stay untouched.
 * - N < 1: nothing is written.
 * - Without a molecular-weight vector every molecular weight counts as 0.
 */
POLYPROPS_API void POLY_SWFVEC(const int64_t* sel, const int64_t* n, const int64_t* ld, const int64_t* idx,
                               double* swf);

/* Segment mole fractions of one row of a segment-count matrix.
 *
 *   SMF(m) = c(m) / Σ c, c(m) = SCM(K, ISEG(m))
 *
 *   K           in      component index: the row of SCM
 *   LD          in      leading dimension of SCM
 *   SCM(LD,*)   in      segments of each segment component per molecule of each component [1]
 *   NSEG        in      number of segments
 *   ISEG(NSEG)  in      component index of each segment
 *   SMF(NSEG)   out     mole fraction of each segment, in the order of ISEG [1]
 *
 * - Reads its arguments and the zero bound; any row K is taken, flagged as a polymer or not.
 * - Σ c at or below the zero bound: equal shares 1/NSEG.
 * - NSEG < 1: nothing is written.
 * - A NaN among the values gives equal shares.
 */
POLYPROPS_API void POLY_GETSMF1(const int64_t* k, const int64_t* ld, const double* scm, const int64_t* nseg,
                                const int64_t* iseg, double* smf);

/* Segment mass fractions of one row of a segment-count matrix.
 *
 *   SWF(m) = w(m) / Σ w, w(m) = MW(ISEG(m)) SCM(K, ISEG(m))
 *
 *   K              in      component index: the row of SCM
 *   LD             in      leading dimension of SCM
 *   MW(component)  in      molecular weights, segments included [g/mol]
 *   SCM(LD,*)      in      segments of each segment component per molecule of each component [1]
 *   NSEG           in      number of segments
 *   ISEG(NSEG)     in      component index of each segment
 *   SWF(NSEG)      out     mass fraction of each segment, in the order of ISEG [1]
 *
 * - Reads its arguments and the zero bound; any row K is taken, flagged as a polymer or not.
 * - Σ w at or below the zero bound: equal shares 1/NSEG.
 * - NSEG < 1: nothing is written.
 * - A NaN among the values gives equal shares.
 */
POLYPROPS_API void POLY_GETSWF1(const int64_t* k, const int64_t* ld, const double* mw, const double* scm,
                                const int64_t* nseg, const int64_t* iseg, double* swf);

/* ---- input semantics ----------------------------------------------------------------------------------- */

/* Checks the polymer input paragraph, reports bad entries and builds the polymer block from the rest.
 *
 *   polymer block: segments, polymers, oligomers with their make-up, catalysts, initiators, counts, attribute
 *     layout, distribution requests
 *   layout table: groups 1..5 hold NSEG + 1 elements each, groups 6..11 one more than there are catalyst site
 *     types, laid end to end
 *
 *   UNUSED1       unused  not used
 *   OP            in      2 checks the paragraph, 5 answers only; anything else does nothing
 *   CONTEXT       in      semantics context, passed on to the host's property semantics
 *   PARAGRAPH(*)  in      the paragraph, handed to the host's sentence service
 *   UNUSED2       unused  not used
 *   STATUS        inout   5 for OP = 5; otherwise what the host's sentence service makes of it
 *
 * - OP = 5 sets STATUS to 5 and touches nothing else.
 * - Messages go through the host's message channel under the name POLSEM. A bad entry is reported and
 *   dropped, the others are processed. Only a paragraph without sentences, segments without a polymer or
 *   oligomer, and polymers or oligomers without a segment end the routine; nothing is built then. A paragraph
 *   that names none of the three is accepted.
 * - STATUS 2 from the host's sentence service ends the routine with nothing built. When memory for its work
 *   space is exhausted, the routine sets STATUS to 2 itself and builds nothing.
 * - The end of the sentences is told to the host last, when word 1 of PARAGRAPH is at least 1, and only by a
 *   check that was not ended early.
 * - A polymer or a segment that is named twice stands where it was named first; the repeat is reported
 *   (messages 5 and 11) and dropped from every list.
 * - A segment of another type than 1 to 4 stands in the segment list alone.
 * - An unknown catalyst or initiator is reported and keeps its place, which holds 0; so does the real value
 *   of a catalyst.
 * - A blank oligomer ID stands for the last one written. Of two counts of the same segment in the same
 *   oligomer the later one holds; an oligomer without any accepted count is listed with zeros.
 * - Blocks of an earlier paragraph are used again. Lists that are too short are enlarged; a catalyst block or
 *   an oligomer block that might be too small is freed and made anew. Without oligomers in the paragraph an
 *   earlier oligomer block stays, but lists none when the number of segments has changed.
 * - Parameter block: the number of site types and the real are always written, 0 without a catalyst-site
 *   sentence; its other words only when the new value is not zero. Of the attribute layout table word 1 and
 *   the reals are not written.
 * - An attribute entry that lacks what a polymer or a catalyst needs, or names EFRAC without an end segment,
 *   is not forwarded; if the host suppresses the message, it is. An entry whose ID is unknown and whose
 *   message is suppressed counts as neither polymer nor catalyst. The forwarded sentence carries the ID as
 *   written.
 * - A distribution request of another type than 1 to 4 is neither stored nor reported.
 * - A list start outside its sentence, or a count beyond it, is cut to what the sentence holds; missing words
 *   read as 0.
 * - Allocates in the host's store. Blocks handed to the host's property semantics and copies of sentences are
 *   not freed.
 */
POLYPROPS_API void POLY_POLSEM(const int64_t* unused1, const int64_t* op, const void* context,
                               const int64_t* paragraph, const int64_t* unused2, int64_t* status);

/* Writes the values of a CATSCALE sentence over component attributes.
 *
 *   column 1 of the attribute's elements 1..m = B(i) where B(i) < missing-value bound
 *   column 3 of the attribute's elements 1..m = A(i) where A(i) < missing-value bound, for each entry i in
 *     order
 *
 *   OP        in      2 applies the sentence; anything else does nothing
 *   SENTENCE  in      id of the block whose word 4 names the CATSCALE data block
 *   STATUS    out     -1 when every entry was applied, 1 when one named an attribute that its component does
 *                     not carry
 *   UNUSED1   unused  not used
 *   LOCATED   in      id of a block that is located and not read
 *
 * - OP other than 2: nothing is read or written, STATUS included.
 * - An attribute that the component does not carry is reported under the name CATSCALE (severity 1, message
 *   1), changes nothing and sets STATUS to 1, also when the host suppresses the message; the other entries
 *   are applied. A component without an attribute block carries none.
 * - A value at or above the missing-value bound, or one that is not a number, leaves its column untouched;
 *   this is not reported.
 * - An attribute without elements is left alone and not reported. Column 2 is never touched.
 */
POLYPROPS_API void POLY_CATSCALESEM(const int64_t* op, const int64_t* sentence, int64_t* status,
                                    const int64_t* unused1, const int64_t* located);

#ifdef __cplusplus
}
#endif

#endif
