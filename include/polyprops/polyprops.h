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

/* ---- binary interaction parameters --------------------------------------------------------------------- */

/* Binary parameter of one pair at a temperature, and its temperature derivative.
 *
 *   VALUE = P1 + P2/x + P3 ln(x) + P4 x + P5 x², x = T / TR, summed as ((P5 x + P4) x) + ((P2/x + P1) + ln(x)
 *     P3)
 *   DERIV = (P4 - P2/x² + P3/x + 2 P5 x) / TR
 *
 *   T      in      temperature [K]
 *   P1     in      constant coefficient [as VALUE]
 *   P2     in      coefficient of 1/x [as VALUE]
 *   P3     in      coefficient of ln(x) [as VALUE]
 *   P4     in      coefficient of x [as VALUE]
 *   P5     in      coefficient of x² [as VALUE]
 *   TR     in      reference temperature [K]
 *   MODE   in      1 value, 2 derivative, 3 both; above 3 derivative, below 1 neither
 *   VALUE  out     the parameter; 0 when not asked for [that of the coefficients]
 *   DERIV  out     its derivative with respect to T; 0 when not asked for [that of the coefficients, per K]
 *
 * - Both results are always written.
 * - A mode that asks for nothing gives 0 twice, whatever the other arguments hold; no logarithm is taken for
 *   a mode that asks for the derivative alone.
 */
POLYPROPS_API void POLY_TBPARA(const double* t, const double* p1, const double* p2, const double* p3,
                               const double* p4, const double* p5, const double* tr, const int64_t* mode,
                               double* value, double* deriv);

/* Binary parameters of all ordered pairs at a temperature, diagonal included.
 *
 *   KIJ(i, j) = ((P5 x + P4) x) + (ln(x) P3 + P1 + P2/x), x = T / P(K, i, j), Pl = P(l, i, j)
 *
 *   T         in      temperature [K]
 *   N         in      parameter positions per pair
 *   K         in      position of the reference temperature
 *   M         in      number of components
 *   P(N,M,M)  in      coefficients P1..P5 at positions 1..5, reference temperature at position K, of each
 *                     ordered pair [as KIJ; K for the reference temperature]
 *   KIJ(M,M)  out     parameter of each ordered pair [that of the coefficients]
 *
 * - A pair whose reference temperature is 0 or not finite, or whose x is not greater than 0, gets 0; so does
 *   every pair when K is not in 1..N.
 * - A coefficient position beyond N counts as 0.
 * - M < 1: nothing is written.
 */
POLYPROPS_API void POLY_TBKIJ3(const double* t, const int64_t* n, const int64_t* k, const int64_t* m,
                               const double* p, double* kij);

/* Binary parameters of the pairs of selected rows at a temperature, and their temperature derivatives.
 *
 *   KIJ(i, j) = ((P5 x + P4) x) + (ln(x) P3 + P1 + P2/x), x = T / P(K, i, j), Pl = P(l, i, j)
 *   DKIJ(i, j) = (P4 - P2/x² + P3/x + 2 P5 x) / P(K, i, j)
 *
 *   T          in      temperature [K]
 *   N          in      parameter positions per pair
 *   K          in      position of the reference temperature
 *   M          in      number of components
 *   P(N,M,M)   in      coefficients P1..P5 at positions 1..5, reference temperature at position K, of each
 *                      ordered pair [as KIJ; K for the reference temperature]
 *   KIJ(M,M)   out     parameter of each ordered pair [that of the coefficients]
 *   DKIJ(M,M)  out     its derivative with respect to T [that of the coefficients, per K]
 *   MODE       in      2 asks for derivatives; no other value does
 *   SELECT(M)  in      exactly 1.0 selects the row of a component [1]
 *
 * - The diagonal and the rows that are not selected are 0 in both matrices; DKIJ is 0 throughout unless MODE
 *   = 2.
 * - There is no default reference temperature: every element is 0 when K is not in 1..N.
 * - A coefficient position beyond N counts as 0.
 * - M < 1: nothing is written.
 */
POLYPROPS_API void POLY_TBKIJ4(const double* t, const int64_t* n, const int64_t* k, const int64_t* m,
                               const double* p, double* kij, double* dkij, const int64_t* mode,
                               const double* select);

/* Binary parameters of selected pairs at a temperature, in the form that the number of positions names.
 *
 *   KIJ(i, j) = P1' + P2' x for N = 2
 *   KIJ(i, j) = P1 + P2 x + P3/x for N = 4
 *   KIJ(i, j) = ((P5 x + P4) x + P2/x + P1) + ln(x) P3 for any other N
 *   x = T / P(K, i, j), or T / 298.15 with K = 0; Pl = P(l, i, j), Pl' = 0 for a coefficient above 1e30
 *
 *   T          in      temperature [K]
 *   N          in      parameter positions per pair; names the form
 *   K          in      position of the reference temperature, 0 for 298.15 K
 *   M          in      number of components
 *   P(N,M,M)   in      coefficients from position 1 on, reference temperature at position K, of each ordered
 *                      pair [as KIJ; K for the reference temperature]
 *   SELECT(M)  in      exactly 1.0 selects the row of a component [1]
 *   MASK(M)    in      anything but 0 drops a component's row and column
 *   KIJ(M,M)   out     parameter of each ordered pair [that of the coefficients]
 *
 * - The diagonal and every element that is not selected are 0.
 * - Every element is 0 when K is neither 0 nor in 1..N.
 * - A coefficient position beyond N counts as 0.
 * - M < 1: nothing is written.
 */
POLYPROPS_API void POLY_KIJ5(const double* t, const int64_t* n, const int64_t* k, const int64_t* m,
                             const double* p, const double* select, const int64_t* mask, double* kij);

/* Temperature times the temperature derivative of the parameters of POLY_KIJ5.
 *
 *   DKIJ(i, j) = x P2' for N = 2
 *   DKIJ(i, j) = P2 x - P3/x for N = 4
 *   DKIJ(i, j) = -P2/x + P3 + P4 x + 2 P5 x² for any other N
 *   x = T / P(K, i, j), or T / 298.15 with K = 0; Pl = P(l, i, j), Pl' = 0 for a coefficient above 1e30
 *
 *   T          in      temperature [K]
 *   N          in      parameter positions per pair; names the form
 *   K          in      position of the reference temperature, 0 for 298.15 K
 *   M          in      number of components
 *   P(N,M,M)   in      coefficients from position 1 on, reference temperature at position K, of each ordered
 *                      pair [as DKIJ; K for the reference temperature]
 *   SELECT(M)  in      exactly 1.0 selects the row of a component [1]
 *   MASK(M)    in      anything but 0 drops a component's row and column
 *   DKIJ(M,M)  out     T dKIJ/dT of each ordered pair [that of the coefficients]
 *
 * - The diagonal and every element that is not selected are 0.
 * - Every element is 0 when K is neither 0 nor in 1..N.
 * - A coefficient position beyond N counts as 0.
 * - M < 1: nothing is written.
 */
POLYPROPS_API void POLY_DKIJ5(const double* t, const int64_t* n, const int64_t* k, const int64_t* m,
                              const double* p, const double* select, const int64_t* mask, double* dkij);

/* Completes a binary parameter array in which pairs are given in only one order of their components.
 *
 *   P(l, b, a) = P(l, a, b), symmetric, for a pair a < b of which exactly one order is 0; either order may be
 *     the given one
 *   P(l, b, a) = -P(l, a, b) at the antisymmetric positions
 *
 *   N         in      parameter positions per pair
 *   M         in      number of components
 *   P(N,M,M)  inout   parameter positions of each ordered pair [any]
 *   K         in      number of leading positions that MODE speaks of; 0 below 0, N above N
 *   MODE      in      1: the leading positions are symmetric; any other value: antisymmetric
 *
 * - Positions after the K leading ones are always symmetric.
 * - A pair that is given in both orders, or in neither, is left as it is, also when its orders disagree. Not
 *   a number counts as given, a negative zero as 0.
 * - The diagonal is left as it is; with M < 2 nothing changes.
 */
POLYPROPS_API void POLY_TBPARI(const int64_t* n, const int64_t* m, double* p, const int64_t* k,
                               const int64_t* mode);

/* ---- chain-length distributions ------------------------------------------------------------------------ */

/* Chain-length grid on a logarithmic scale, and cleared arrays to accumulate distributions in.
 *
 *   X(k) = trunc(10^((k L)/N)), L = log10(PMAX), k = 1..N
 *   X(k) = X(k - 1) + 1 where that is not greater than X(k - 1); X(0) counts as 0
 *
 *   N         in      number of grid points
 *   M         in      number of sections or site types
 *   X(N)      out     chain lengths, whole numbers, strictly increasing [1]
 *   PMAX      in      longest chain of the grid [1]
 *   W(M+1)    out     running weights, the total last: set to 0 [any amount]
 *   Y(N)      out     composite distribution: set to 0 [1]
 *   COL(N,M)  out     distribution of each section or site type: set to 0 [1]
 *
 * - The last point may fall one below a whole-number PMAX through rounding; a grid finer than the whole
 *   numbers reaches beyond PMAX.
 * - A longest chain that is not greater than 0 or not finite gives the grid 1, 2, …, N.
 * - N < 1: only W is cleared. M = 0: W is one word, COL is left as it is.
 */
POLYPROPS_API void POLY_CSDINI(const int64_t* n, const int64_t* m, double* x, const double* pmax, double* w,
                               double* y, double* col);

/* Mixes two distributions in proportion to their weights.
 *
 *   Y(k) = (Y1(k) W1 + Y2(k) W2) / W, W = W1 + W2
 *
 *   N      in      number of grid points
 *   Y1(N)  in      first distribution [1]
 *   W1     in      its weight [any amount]
 *   Y2(N)  in      second distribution [1]
 *   W2     in      its weight [as W1]
 *   Y(N)   out     the mixture; may be Y1 or Y2 [1]
 *   W      out     its weight; may be W1 or W2 [as W1]
 *
 * - W is always written. A W that is not greater than the zero bound leaves Y as it is.
 * - N < 1: only W is written.
 */
POLYPROPS_API void POLY_CSDADD(const int64_t* n, const double* y1, const double* w1, const double* y2,
                               const double* w2, double* y, double* w);

/* Adds one increment of polymer, made by several site types, to running chain-length distributions.
 *
 *   COL(k, j) = (g_j(X(k)) F(j) + COL(k, j) W0) / (W0 + Σ F), W0 = W(NS + 1), for each site type j with F(j)
 *     at or above the zero bound
 *   Y(k) = Σ_j COL(k, j)
 *   g(x) = e^c x s (0.5 x β s + τ) for an even MODE
 *   g(x) = e^c x x s (0.5 x β s + τ) for an odd MODE
 *   s = τ + β, c = max(-250, min(80.59, -s x))
 *
 *   N          in      number of grid points
 *   NS         in      number of site types
 *   MODE       in      even: weight-fraction form; odd: times the chain length once more (GPC form)
 *   TAU(NS)    in      site parameter τ [1]
 *   BETA(NS)   in      site parameter β [1]
 *   F(NS)      in      amount of new polymer of each site type [as W]
 *   X(N)       in      chain lengths [1]
 *   W(NS+1)    inout   running weight of each site type, the total last [any amount]
 *   Y(N)       inout   running composite distribution [1]
 *   COL(N,NS)  inout   running distribution of each site type [1]
 *
 * - NS < 1, or Σ F below the zero bound: nothing changes.
 * - A site type whose F is not at or above the zero bound keeps its column and its weight; its column still
 *   counts in Y.
 * - A new total weight at or below the zero bound: Y is left as it is; the weights, and the columns unless
 *   that total is exactly 0, are updated.
 * - N < 1: only the weights are updated.
 */
POLYPROPS_API void POLY_CSDCAL(const int64_t* n, const int64_t* ns, const int64_t* mode, const double* tau,
                               const double* beta, const double* f, const double* x, double* w, double* y,
                               double* col);

/* Writes a composite distribution to the host's report, and it and its sections to the host's summary file.
 *
 *   Area = Σ a(k), Pn = 1 / Σ a(k)/X(k + 1), Pw = Σ a(k) X(k + 1), PDI = Pw / Pn, k = 1..N-1
 *   a(k) = 0.5 (h(k) + h(k + 1)) (X(k + 1) - X(k)), h(k) = Y(k, 1), or Y(k, 1)/X(k) in GPC form
 *
 *   CONTEXT    in      the host's summary context, passed on to it
 *   UNUSED1    unused  not used
 *   UNUSED2    unused  not used
 *   UNUSED3    unused  not used
 *   UNUSED4    unused  not used
 *   UNUSED5    unused  not used
 *   UNUSED6    unused  not used
 *   UNUSED7    unused  not used
 *   UNUSED8    unused  not used
 *   UNUSED9    unused  not used
 *   N          in      number of grid points
 *   X(N)       in      chain lengths [1]
 *   Y(N,NC+1)  in      distributions: the composite in column 1, section c in column c + 1 [1]
 *   NC         in      number of sections
 *   SCALE      in      factor on the chain lengths of the summary file [any]
 *   SCALED     in      1 applies SCALE; no other value does
 *   GPC        in      not 0: Y holds chain length times weight fraction
 *
 * - The report has a title, the table of column 1 in as many pages as it needs, and one line with Area, Pn,
 *   Pw and PDI; with Area below the zero bound, which N < 2 gives, the title alone.
 * - Real fields are 11 wide with 4 significant digits, as the Fortran edit G11.4 prints them; negative zero
 *   prints as zero, values that are not finite as NaN, Infinity or -Infinity.
 * - A page shorter than 6 lines is taken as 6. A point number beyond 9999 widens its field.
 * - The summary file gets its data sets only when the host's report switch is 1 or 2, also when the table was
 *   left out: NPOINT, PROPERTIES and TRAY_NO sets, and the blocks YCSD, XCSD and YCSDS. The host's summary
 *   counters advance by five data sets and three list sets.
 */
POLYPROPS_API void POLY_CSDPLOT(const void* context, const void* unused1, const void* unused2,
                                const void* unused3, const void* unused4, const void* unused5,
                                const void* unused6, const void* unused7, const void* unused8,
                                const void* unused9, const int64_t* n, const double* x, const double* y,
                                const int64_t* nc, const double* scale, const int64_t* scaled,
                                const int64_t* gpc);

/* ---- reports ------------------------------------------------------------------------------------------- */

/* Writes polymer results per catalyst site type to the host's summary file.
 *
 *   block POLYRES = R1(1..NS), each followed by a separator, then R2(1..NS) … R7(1..NS)
 *
 *   CONTEXT  in      the host's summary context, passed on to it
 *   NS       in      number of catalyst site types
 *   R1(NS)   in      first result of each site type [any]
 *   R2(NS)   in      second result [any]
 *   R3(NS)   in      third result [any]
 *   R4(NS)   in      fourth result [any]
 *   R5(NS)   in      fifth result [any]
 *   R6(NS)   in      sixth result [any]
 *   R7(NS)   in      seventh result [any]
 *
 * - Nothing is written unless the run has polymers (by the polymer count of the host) and the host's report
 *   switch is 1 or 2.
 * - The block is listed against the data set SITES, which is named, not numbered. The host's summary counters
 *   advance by one list set.
 * - NS < 1: the block holds no values.
 */
POLYPROPS_API void POLY_WRTPOLSUM(const void* context, const int64_t* ns, const double* r1, const double* r2,
                                  const double* r3, const double* r4, const double* r5, const double* r6,
                                  const double* r7);

#ifdef __cplusplus
}
#endif

#endif
