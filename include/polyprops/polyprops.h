// clang-format off
// The exported routines of libpolyprops. Made by scripts/generate.py from src/exports/routines.toml.
//
// Every argument is an address. Integers are 64-bit, reals are doubles; arrays and component indices count
// from 1, matrices are column-major with the leading dimension first. Argument lines read
//   NAME(shape)  direction  meaning [unit]
// with the shapes "component" (by component index 1..NC), "segment" (by position in the host's segment list)
// and "*" (as far as the routine's rule reaches). Work arguments are undefined afterwards; unused ones are
// never read and may be null. No routine reports an error unless its notes say so: values that cannot be used
// fall back as the notes describe. A parameter or a molecular weight without further words is the
// pure-component parameter of the host.
//
// The loading process defines the names of polyprops/host.h.
#pragma once

#include <stdint.h>

#if defined(__GNUC__)
#define POLYPROPS_API __attribute__((visibility("default")))
#else
#define POLYPROPS_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

// ---- chain averages ----

// Number-average degree of polymerization (segments per chain) of listed components.
//
//   DPN(i) = max(1, F / Z) for a polymer without a "DPN" attribute
//   F = FMOM, else Σ SFLOW(s) over s = 1..NSEG
//   Z = ZMOM, else 0.5 Σ SFLOW(e) over e = 1..min(NEND, NSEG)
//
//   SEL     in      attribute selector, passed on to the host's attribute search
//   N       in      number of listed components
//   IDX(N)  in      component index of each entry
//   DPN(N)  out     segments per chain, by position [1]
//
// - Without a polymer block, or with neither polymers (by the polymer count of the host) nor oligomers in the
//   run, every entry is its DPN parameter as it stands, also below 1; 1.0 when the parameter vector does not
//   exist. In every other case no result is below 1.0.
// - A polymer that carries "DPN": the attribute when 1.0 < value < missing-value bound, otherwise the DPN
//   parameter; its moments are then not consulted, and exactly 1.0 is not usable.
// - A polymer without "DPN": 1.0 unless both Z and F are above the zero bound.
// - The estimate of Z without "ZMOM" takes SFLOW at the entry numbers of the end-segment list: it is half the
//   flow of the end segments when these lead the segment list.
// - An attribute that the polymer does not carry counts as 0.
// - An oligomer whose DPN parameter is within 1e-10 of 1: its segment count from the oligomer list, if it is
//   in that list. Any other oligomer, and a conventional component: the DPN parameter.
// - N < 1: nothing is written.
// - A NaN found for a component of a run with chains gives 1.0.
// - An oligomer that stands twice in the oligomer list takes its first entry.
POLYPROPS_API void POLY_GETDPN(const int64_t* sel, const int64_t* n, const int64_t* idx, double* dpn);

// Number-average degree of polymerization from a segment-count matrix.
//
//   DPN(i) = Σ_m SCM(j, ISEG(m)) for a flagged component j = IDX(i), SCM(j, 1) otherwise
//
//   LD                in      leading dimension of SCM
//   NSEG              in      number of segments; below 1 every sum is 0
//   ISEG(NSEG)        in      component index of each segment
//   SCM(LD,*)         in      segments of component k per molecule of j [1]
//   N                 in      number of listed components
//   IDX(N)            in      component index of each entry
//   DPN(N)            out     segments per chain, by position [1]
//   IFLAG(component)  in      1 marks a polymer or oligomer; no other value does
//
// - Reads nothing but its arguments.
// - N < 1: nothing is written.
POLYPROPS_API void POLY_GETDPN1(const int64_t* ld, const int64_t* nseg, const int64_t* iseg,
                                const double* scm, const int64_t* n, const int64_t* idx, double* dpn,
                                const int64_t* iflag);

// Number-average degree of polymerization from a segment-count matrix; the same as POLY_GETDPN1.
//
//   DPN(i) = Σ_m SCM(j, ISEG(m)) for a flagged component j = IDX(i), SCM(j, 1) otherwise
//
//   LD                in      leading dimension of SCM
//   NSEG              in      number of segments; below 1 every sum is 0
//   ISEG(NSEG)        in      component index of each segment
//   SCM(LD,*)         in      segments of component k per molecule of j [1]
//   N                 in      number of listed components
//   IDX(N)            in      component index of each entry
//   DPN(N)            out     segments per chain, by position [1]
//   IFLAG(component)  in      1 marks a polymer or oligomer; no other value does
//
// - Reads nothing but its arguments.
// - N < 1: nothing is written.
POLYPROPS_API void POLY_GETDPN2(const int64_t* ld, const int64_t* nseg, const int64_t* iseg,
                                const double* scm, const int64_t* n, const int64_t* idx, double* dpn,
                                const int64_t* iflag);

// Mean segment molecular weight of listed components.
//
//   MRF(i) = Σ MW(s) f(s) / Σ f(s) for a polymer, f = SFRAC, else SFLOW
//   MRF(i) = Σ MW(s) count(s, k) / Σ count(s, k) for the k-th oligomer of the run
//
//   SEL     in      attribute selector, passed on to the host's attribute search
//   N       in      number of listed components
//   IDX(N)  in      component index of each entry
//   MRF(N)  out     molecular weight per segment, by position [g/mol]
//
// - Without a polymer block, or with neither polymers nor oligomers in the run, every entry is its molecular
//   weight; so is a component that is neither a polymer nor in the oligomer list.
// - A polymer that carries "MWSEG" with 1.0 < value < missing-value bound: that value.
// - f is SFLOW only when the offset of "SFRAC" is exactly 0. An element of f at or above the missing-value
//   bound counts as 1/NSEG; an attribute that is not carried counts as 0.
// - Σ f(s) at or below the zero bound: the plain mean of the segment molecular weights. NSEG = 0: the polymer
//   keeps its molecular weight.
// - A polymer whose value came from f and that also stands in the oligomer list takes the value of the
//   oligomer.
// - An oligomer whose counts do not sum to more than 0: Σ MW(s) count(s, k), undivided.
// - N < 1: nothing is written.
// - Without a molecular-weight vector every molecular weight counts as 0.
// - Whether the run has polymers is told by its polymer list here.
// - A NaN sum of fractions gives the plain mean.
// - A component that stands twice in the oligomer list takes its first entry; one whose counts vanish gets Σ
//   MW(s) count(s), which is 0 without segments.
POLYPROPS_API void POLY_GETMRF(const int64_t* sel, const int64_t* n, const int64_t* idx, double* mrf);

// Number-average molecular weight of listed components.
//
//   MWN(i) = DPN(i) MRF(i) for a polymer or oligomer, the molecular weight otherwise
//
//   SEL     in      attribute selector, passed on to the host's attribute search
//   N       in      number of listed components
//   IDX(N)  in      component index of each entry
//   MWN(N)  out     number-average molecular weight, by position [g/mol]
//
// - DPN and MRF as POLY_GETDPN and POLY_GETMRF give them, with all their fallbacks.
// - Without a polymer block every entry is its molecular weight.
// - N < 1: nothing is written.
// - Without a molecular-weight vector every molecular weight counts as 0.
POLYPROPS_API void POLY_GETMWN(const int64_t* sel, const int64_t* n, const int64_t* idx, double* mwn);

// Number-average molecular weight from a segment-count matrix.
//
//   MWN(i) = Σ_m MW(ISEG(m)) SCM(j, ISEG(m)) for a flagged component j = IDX(i), MW(j) otherwise
//
//   LD                in      leading dimension of SCM
//   MW(component)     in      molecular weights, segments included [g/mol]
//   NSEG              in      number of segments; below 1 every sum is 0
//   ISEG(NSEG)        in      component index of each segment
//   SCM(LD,*)         in      segments of component k per molecule of j [1]
//   N                 in      number of listed components
//   IDX(N)            in      component index of each entry
//   MWN(N)            out     number-average molecular weight, by position [g/mol]
//   IFLAG(component)  in      1 marks a polymer or oligomer; no other value does
//
// - Reads nothing but its arguments.
// - N < 1: nothing is written.
POLYPROPS_API void POLY_GETMWN1(const int64_t* ld, const double* mw, const int64_t* nseg, const int64_t* iseg,
                                const double* scm, const int64_t* n, const int64_t* idx, double* mwn,
                                const int64_t* iflag);

// Number-average molecular weight of listed components straight from segment flows and zeroth moment.
//
//   MRT(i) = Σ MW(s) SFLOW(s) / ZMOM for a polymer, the molecular weight otherwise
//
//   SEL     in      attribute selector, passed on to the host's attribute search
//   N       in      number of listed components
//   IDX(N)  in      component index of each entry
//   MRT(N)  out     number-average molecular weight, by position [g/mol]
//
// - Without a polymer block or without polymers in the run every entry is its molecular weight; so are
//   oligomers.
// - A polymer keeps its molecular weight unless it carries "ZMOM", zero bound < ZMOM < missing-value bound
//   and Σ MW(s) SFLOW(s) > zero bound. "SFLOW" not carried counts as 0.
// - N < 1: nothing is written.
// - Without a molecular-weight vector every molecular weight counts as 0.
POLYPROPS_API void POLY_GETMRT(const int64_t* sel, const int64_t* n, const int64_t* idx, double* mrt);

// Weight-average molecular weight of listed components.
//
//   MWW(i) = PDI(i) MWN(i) for a polymer or oligomer, PDI parameter × molecular weight otherwise
//
//   SEL     in      attribute selector, passed on to the host's attribute search
//   N       in      number of listed components
//   IDX(N)  in      component index of each entry
//   MWW(N)  out     weight-average molecular weight, by position [g/mol]
//
// - PDI and MWN as POLY_GETPDI and POLY_GETMWN give them, with all their fallbacks.
// - Without the PDI parameter vector a PDI parameter is 1.0.
// - N < 1: nothing is written.
// - Without a molecular-weight vector every molecular weight counts as 0.
POLYPROPS_API void POLY_GETMWW(const int64_t* sel, const int64_t* n, const int64_t* idx, double* mww);

// Polydispersity index (weight-average over number-average molecular weight) of listed components.
//
//   PDI(i) = (SMOM / F) / (F / ZMOM) = SMOM ZMOM / F² for a polymer, the PDI parameter otherwise
//   F = Σ SFLOW(s) over s = 1..NSEG; FMOM is not read
//
//   SEL     in      attribute selector, passed on to the host's attribute search
//   N       in      number of listed components
//   IDX(N)  in      component index of each entry
//   PDI(N)  out     polydispersity index, by position [1]
//
// - Without the PDI parameter vector a PDI parameter is 1.0.
// - Without a polymer block, without polymers in the run, or with the host's PDI mode at 100, every entry is
//   its PDI parameter; so are oligomers.
// - A polymer keeps its PDI parameter unless it carries "SMOM" and "ZMOM", zero bound < ZMOM < missing-value
//   bound, and both F and Σ MW(s) SFLOW(s) are at or above the zero bound. "SFLOW" not carried counts as 0.
// - N < 1: nothing is written.
// - Without a molecular-weight vector every molecular weight counts as 0. Where the zero bound is above 0 a
//   polymer then keeps its PDI parameter.
// - Segment flows of exactly 0 keep the PDI parameter, also where the zero bound is 0.
POLYPROPS_API void POLY_GETPDI(const int64_t* sel, const int64_t* n, const int64_t* idx, double* pdi);

// Segment mole fractions of a polymer or oligomer.
//
//   SMF(s) = v(s) / Σ v
//   v = SFRAC, else SFLOW of a polymer; segment counts of an oligomer
//
//   SEL           in      attribute selector, passed on to the host's attribute search
//   C             in      component index
//   SMF(segment)  out     mole fraction of each segment [1]
//
// - SMF stays untouched without a polymer block, without segments, with neither polymers nor oligomers in the
//   run, and for a component that is neither a polymer nor in the oligomer list.
// - v is SFLOW only when the offset of "SFRAC" is exactly 0. An element of a polymer at or above the
//   missing-value bound counts as 0; so does every element of an attribute that is not carried.
// - Equal shares 1/NSEG: a polymer whose sum is at or below the zero bound, an oligomer whose sum is exactly
//   0.
// - Whether the run has polymers is told by its polymer list.
// - A component that stands twice in the oligomer list takes its first entry.
// - A NaN among the values makes every fraction NaN.
POLYPROPS_API void POLY_GETSMF(const int64_t* sel, const int64_t* c, double* smf);

// Segment mass fractions of a polymer or oligomer.
//
//   SWF(s) = v(s) / Σ v
//   v = SFLOW(s) MW(s) of a polymer; MW(s) × segment count of an oligomer
//
//   SEL           in      attribute selector, passed on to the host's attribute search
//   C             in      component index
//   SWF(segment)  out     mass fraction of each segment [1]
//
// - SWF stays untouched without a polymer block, without segments, with neither polymers nor oligomers in the
//   run, and for a component that is neither a polymer nor in the oligomer list.
// - "SFRAC" is not read. A product v(s) of a polymer at or above the missing-value bound counts as 0; so does
//   every element of an "SFLOW" that is not carried.
// - Equal shares 1/NSEG: a polymer whose sum is at or below the zero bound, an oligomer whose sum is exactly
//   0.
// - Whether the run has polymers is told by its polymer list.
// - A component that stands twice in the oligomer list takes its first entry.
// - A NaN among the values makes every fraction NaN.
// - Without a molecular-weight vector every molecular weight counts as 0.
POLYPROPS_API void POLY_GETSWF(const int64_t* sel, const int64_t* c, double* swf);

// Segment mass fractions of listed components, one column each.
//
//   SWF(s, i) = the mass fraction of segment s in component IDX(i), as POLY_GETSWF gives it
//
//   SEL        in      attribute selector, passed on to the host's attribute search
//   N          in      number of listed components
//   LD         in      leading dimension of SWF, at least the number of segments
//   IDX(N)     in      component index of each entry
//   SWF(LD,N)  out     mass fractions by segment position; column i belongs to entry i [1]
//
// - A component for which POLY_GETSWF writes nothing leaves its column untouched; rows beyond the number of
//   segments stay untouched.
// - N < 1: nothing is written.
// - Without a molecular-weight vector every molecular weight counts as 0.
POLYPROPS_API void POLY_SWFVEC(const int64_t* sel, const int64_t* n, const int64_t* ld, const int64_t* idx,
                               double* swf);

// Segment mole fractions of one row of a segment-count matrix.
//
//   SMF(m) = c(m) / Σ c, c(m) = SCM(K, ISEG(m))
//
//   K           in      component index: the row of SCM
//   LD          in      leading dimension of SCM
//   SCM(LD,*)   in      segments of each segment component per molecule of each component [1]
//   NSEG        in      number of segments
//   ISEG(NSEG)  in      component index of each segment
//   SMF(NSEG)   out     mole fraction of each segment, in the order of ISEG [1]
//
// - Reads its arguments and the zero bound; any row K is taken, flagged as a polymer or not.
// - Σ c at or below the zero bound: equal shares 1/NSEG.
// - NSEG < 1: nothing is written.
// - A NaN among the values gives equal shares.
// - SMF overlaps no argument that is read.
POLYPROPS_API void POLY_GETSMF1(const int64_t* k, const int64_t* ld, const double* scm, const int64_t* nseg,
                                const int64_t* iseg, double* smf);

// Segment mass fractions of one row of a segment-count matrix.
//
//   SWF(m) = w(m) / Σ w, w(m) = MW(ISEG(m)) SCM(K, ISEG(m))
//
//   K              in      component index: the row of SCM
//   LD             in      leading dimension of SCM
//   MW(component)  in      molecular weights, segments included [g/mol]
//   SCM(LD,*)      in      segments of each segment component per molecule of each component [1]
//   NSEG           in      number of segments
//   ISEG(NSEG)     in      component index of each segment
//   SWF(NSEG)      out     mass fraction of each segment, in the order of ISEG [1]
//
// - Reads its arguments and the zero bound; any row K is taken, flagged as a polymer or not.
// - Σ w at or below the zero bound: equal shares 1/NSEG.
// - NSEG < 1: nothing is written.
// - A NaN among the values gives equal shares.
// - SWF overlaps no argument that is read.
POLYPROPS_API void POLY_GETSWF1(const int64_t* k, const int64_t* ld, const double* mw, const double* scm,
                                const int64_t* nseg, const int64_t* iseg, double* swf);

// Chain moments and polymer mass flow of a stream vector, per site type and in total.
//
//   NS = 1: Z = Σ ZMOM, F = Σ SFLOW(s), S = Σ SMOM, W = Σ flow × MW, over substreams and polymers
//   NS > 1, t < NS: Z(t) = Σ SZMOM(t), F(t) = Σ SSFLOW(s, t), S(t) = Σ SSMOM(t), W(t) = Σ MW(s) SSFLOW(s, t)
//   NS > 1, t = NS: sums over all sites, W(NS) = Σ flow × MW
//
//   SV(*)          in      stream vector: flows and attributes of each substream [kmol/s]
//   NSS            in      number of substreams
//   K0(NSS)        in      position in a stream vector of the first component flow of each substream
//   KTYPE(NSS)     in      type code of each substream; 3 is skipped
//   MW(component)  in      molecular weights, polymers and segments included [g/mol]
//   NS             in      number of result entries: 1 for whole polymers, else one per site type and the
//                          total last
//   Z(NS)          out     zeroth moment: chains [kmol/s]
//   F(NS)          out     first moment: segments [kmol/s]
//   S(NS)          out     second moment [kmol/s]
//   W(NS)          out     polymer mass flow; of a site, the mass of its segments [kg/s]
//
// - Without a polymer block, with an empty polymer list, or with NS < 1 nothing is written.
// - A polymer whose mass flow in a substream is below the zero bound is skipped there; at the bound it
//   counts.
// - An attribute that a polymer does not carry counts as 0. "FMOM" is not read.
// - The unit of a flow is whatever the stream vector holds; the ones given are the usual ones.
// - The results overlap neither SV nor MW. A mass flow that is not a number counts as present.
// - The host is asked once for each attribute of the first 64 polymers of the run, and again for each entry
//   for those beyond.
POLYPROPS_API void POLY_GETMOMENTS(const double* sv, const int64_t* nss, const int64_t* k0,
                                   const int64_t* ktype, const double* mw, const int64_t* ns, double* z,
                                   double* f, double* s, double* w);

// Averages of the polymer that one stream vector holds beyond another, per site type and in total.
//
//   with the differences of the sums of POLY_GETMOMENTS, SV2 - SV1
//   PMASS = W, PMRS = W / F, PMWN = W / Z, PMWW = S (W / F) / F
//   PDPN = F / Z, PDPW = S / F, PPDI = Z (S / F) / F
//
//   SV1(*)         in      stream vector to subtract [kmol/s]
//   SV2(*)         in      stream vector to subtract from [kmol/s]
//   NSS            in      number of substreams
//   K0(NSS)        in      position in a stream vector of the first component flow of each substream
//   KTYPE(NSS)     in      type code of each substream; 3 is skipped
//   MW(component)  in      molecular weights, polymers and segments included [g/mol]
//   NS             in      number of result entries: 1 for whole polymers, else one per site type and the
//                          total last
//   PMASS(NS)      out     polymer mass flow [kg/s]
//   PMRS(NS)       out     mean segment molecular weight [g/mol]
//   PMWN(NS)       out     number-average molecular weight [g/mol]
//   PMWW(NS)       out     weight-average molecular weight [g/mol]
//   PDPN(NS)       out     number-average degree of polymerization [1]
//   PDPW(NS)       out     weight-average degree of polymerization [1]
//   PPDI(NS)       out     polydispersity index [1]
//
// - PMWN and PDPN are 0 unless the difference of Z is above the zero bound; PMRS, PMWW, PDPW and PPDI are 0
//   unless the difference of F is above exactly 0.
// - Without a polymer block or with an empty polymer list every result is 0.
// - Any NS ≥ 1 works; NS < 1: nothing is written.
// - The results overlap neither the stream vectors nor MW nor each other.
// - The host is asked once for each attribute of the first 64 polymers of the run, and again for each entry
//   for those beyond.
POLYPROPS_API void POLY_POLYRESULTS(const double* sv1, const double* sv2, const int64_t* nss,
                                    const int64_t* k0, const int64_t* ktype, const double* mw,
                                    const int64_t* ns, double* pmass, double* pmrs, double* pmwn,
                                    double* pmww, double* pdpn, double* pdpw, double* ppdi);

// Ratio of a mixture's moles on the apparent basis to its moles of chains.
//
//   RAT = (A / B) / A, A = Σ MW X(i), B = Σ X(i) / DP(i)
//   DP = F / Z of a polymer, F = Σ SFLOW(s), Z = ZMOM, else 0.5 Σ SFLOW(e) over e = 1..min(NEND, NSEG)
//
//   SEL     in      attribute selector, passed on to the host's attribute search
//   N       in      number of listed components
//   IDX(N)  in      component index of each entry
//   X(N)    in      fraction of each entry [1]
//   RAT     out     the ratio [1]
//
// - Without a polymer block, or with neither polymers (by the polymer count of the host) nor oligomers in the
//   run: 1.0; so when A or B is exactly 0, and therefore when N < 1.
// - A polymer: DP = 1.0 unless both Z and F are above the zero bound; there is no lower limit of 1. "DPN" and
//   "FMOM" are not read.
// - An oligomer: its DPN parameter (1.0 without the parameter vector); within 1e-10 of 1 its segment count
//   from the oligomer list, if it is in that list. A conventional component: 1.0.
// - A chain length of exactly 0 counts as 1.0.
// - The estimate of Z without "ZMOM" takes SFLOW at the entry numbers of the end-segment list: it is half the
//   flow of the end segments when these lead the segment list.
// - An attribute that the polymer does not carry counts as 0.
// - Without a molecular-weight vector A is 0 and RAT is 1.0.
POLYPROPS_API void POLY_GETRAT(const int64_t* sel, const int64_t* n, const int64_t* idx, const double* x,
                               double* rat);

// Polymer flag array of listed components.
//
//   IFLAG(IDX(i)) = 1 for a polymer or oligomer, 0 otherwise
//
//   N                 in      number of listed components
//   IDX(N)            in      component index of each entry
//   UNUSED1           unused  not read
//   IFLAG(component)  out     polymer flags, by component index
//
// - Entries of components that are not listed stay untouched.
// - N < 1: nothing is written.
POLYPROPS_API void POLY_GETISP(const int64_t* n, const int64_t* idx, const void* unused1, int64_t* iflag);

// CRY parameter of listed components.
//
//   CRY(i) = the CRY parameter of IDX(i)
//
//   UNUSED1  unused  not read
//   N        in      number of listed components
//   IDX(N)   in      component index of each entry
//   CRY(N)   out     CRY parameter, by position [1]
//
// - 0.0 when the parameter vector does not exist.
// - N < 1: nothing is written.
POLYPROPS_API void POLY_GETCRY(const void* unused1, const int64_t* n, const int64_t* idx, double* cry);

// ---- composition bases ----

// Apparent to true mole fractions, with the host's chain averages.
//
//   XT(i) ∝ MW(c) XA(i) / (DPN MRF) for a polymer or oligomer c = IDX(i), XA(i) otherwise; normalised to sum
//     1
//
//   N              in      number of listed components
//   IDX(N)         in      component index of each entry
//   MW(component)  in      molecular weights of the apparent basis; read for polymers and oligomers only
//                          [g/mol]
//   XA(N)          in      apparent mole fractions, by position [1]
//   XT(N)          out     true mole fractions, by position [1]
//
// - DPN and MRF as POLY_GETDPN and POLY_GETMRF give them with selector 1.
// - Without a polymer block (its id 0 or less) XT is XA as it stands, not normalised.
// - An entry whose DPN MRF is exactly 0 keeps its apparent fraction; a sum of exactly 0 leaves the values
//   unnormalised.
// - XT may be XA. N < 1: nothing is written.
POLYPROPS_API void POLY_XATOXT(const int64_t* n, const int64_t* idx, const double* mw, const double* xa,
                               double* xt);

// Apparent to true mole fractions, with a segment-count matrix.
//
//   XT(i) ∝ XA(i) MW(c) / Σ_m MW(ISEG(m)) SCM(c, ISEG(m)) for a flagged component c = IDX(i), XA(i)
//     otherwise; normalised to sum 1
//
//   N                 in      number of listed components
//   IDX(N)            in      component index of each entry
//   XA(N)             in      apparent mole fractions, by position [1]
//   LD                in      leading dimension of SCM
//   MW(component)     in      molecular weights of the apparent basis, segments included [g/mol]
//   NSEG              in      number of segments
//   ISEG(NSEG)        in      component index of each segment
//   IFLAG(component)  in      1 marks a polymer or oligomer; no other value does
//   SCM(LD,*)         in      segments of component k per molecule of j [1]
//   XT(N)             out     true mole fractions, by position [1]
//
// - A sum of exactly 0 leaves the values unnormalised.
// - The chain molecular weight of a flagged component is not tested: a row without segments divides by 0.
// - Reads nothing but its arguments. XT may be XA. N < 1: nothing is written.
POLYPROPS_API void POLY_GETXTRUE(const int64_t* n, const int64_t* idx, const double* xa, const int64_t* ld,
                                 const double* mw, const int64_t* nseg, const int64_t* iseg,
                                 const int64_t* iflag, const double* scm, double* xt);

// Molar quantities or mole fractions to the true basis, polymers as the host classes them.
//
//   MODE = 0: VT(i) = MWN(i) V(i) / MW(c) for a polymer or oligomer c = IDX(i), V(i) otherwise
//   MODE = 1: VT(i) ∝ MW(c) V(i) / MWN(i) for a polymer or oligomer, V(i) otherwise; normalised to sum 1
//
//   N              in      number of listed components
//   IDX(N)         in      component index of each entry
//   MW(component)  in      molecular weights of the apparent basis [g/mol]
//   MWN(N)         in      number-average molecular weights, by position; read for polymers and oligomers
//                          only [g/mol]
//   V(N)           in      quantity per mole (MODE 0) or mole fractions (MODE 1) [any]
//   VT(N)          out     the same on the true basis [any]
//   MODE           in      0: a quantity per mole; 1: mole fractions
//
// - The host is asked for the class of each entry; no polymer block is needed.
// - MODE = 1 with a sum that is not above the zero bound: the values stay unnormalised. Neither molecular
//   weight is tested before it divides.
// - Any other MODE: nothing is written. VT may be V. N < 1: nothing is written.
POLYPROPS_API void POLY_VATOVT(const int64_t* n, const int64_t* idx, const double* mw, const double* mwn,
                               const double* v, double* vt, const int64_t* mode);

// Molar quantities or mole fractions to the true basis, polymers by flag.
//
//   MODE = 0: VT(i) = MWN(i) V(i) / MW(c) for a polymer or oligomer c = IDX(i), V(i) otherwise
//   MODE = 1: VT(i) ∝ MW(c) V(i) / MWN(i) for a polymer or oligomer, V(i) otherwise; normalised to sum 1
//
//   N                 in      number of listed components
//   IDX(N)            in      component index of each entry
//   MW(component)     in      molecular weights of the apparent basis [g/mol]
//   MWN(N)            in      number-average molecular weights, by position; read for polymers and oligomers
//                             only [g/mol]
//   V(N)              in      quantity per mole (MODE 0) or mole fractions (MODE 1) [any]
//   VT(N)             out     the same on the true basis [any]
//   MODE              in      0: a quantity per mole; 1: mole fractions
//   UNUSED1           unused  not read
//   IFLAG(component)  in      1 marks a polymer or oligomer; no other value does
//
// - A component counts as a polymer or oligomer when its flag is exactly 1.
// - MODE = 1 with a sum that is not above the zero bound: the values stay unnormalised. Neither molecular
//   weight is tested before it divides.
// - Any other MODE: nothing is written. VT may be V. N < 1: nothing is written.
POLYPROPS_API void POLY_VATOVX(const int64_t* n, const int64_t* idx, const double* mw, const double* mwn,
                               const double* v, double* vt, const int64_t* mode, const void* unused1,
                               const int64_t* iflag);

// Apparent mole fractions to mass fractions.
//
//   WT(i) = XA(i) MW / Σ XA MW, MW the host's molecular weight of IDX(i)
//
//   XA(N)   in      apparent mole fractions, by position [1]
//   N       in      number of listed components
//   IDX(N)  in      component index of each entry
//   WT(N)   out     mass fractions, by position [1]
//
// - A sum that is not above the zero bound: WT holds the products XA(i) MW.
// - WT may be XA. N < 1: nothing is written.
POLYPROPS_API void POLY_XATOWT(const double* xa, const int64_t* n, const int64_t* idx, double* wt);

// Mole fractions to mass fractions with given molecular weights.
//
//   WT(i) = XT(i) MWT(i) / Σ XT MWT
//
//   N       in      number of entries
//   XT(N)   in      mole fractions [1]
//   MWT(N)  in      molecular weight of each entry [g/mol]
//   WT(N)   out     mass fractions [1]
//
// - A sum that is not above the zero bound: WT is 0 throughout.
// - WT may be XT or MWT. N < 1: nothing is written.
POLYPROPS_API void POLY_XTTOWT(const int64_t* n, const double* xt, const double* mwt, double* wt);

// Segments of one polymer or oligomer and how many of each stand in a molecule.
//
//   CNT(k) = SFLOW(m) / ZMOM of a polymer, the segment count of an oligomer, for the k-th segment m with a
//     positive amount
//
//   SEL      in      attribute selector, passed on to the host's attribute search
//   J        in      component index
//   NSEG     out     number of segments found
//   ISEG(*)  out     component index of each, in segment-list order, column after column; room for the
//                    segment list, times the columns of an oligomer that stands in several
//   CNT(*)   out     segments per molecule of J; as long as ISEG [1]
//
// - Without a polymer block, or with a polymer list and an oligomer list that are both empty, nothing is
//   written, NSEG included.
// - A polymer without "ZMOM", or whose "ZMOM" is not above 0, counts 1.0 of each segment. "SFLOW" not carried
//   counts as 0; missing values are not left out.
// - An oligomer is found by the oligomer list alone; standing there more than once it gives the segments of
//   each column in turn.
// - NSEG = 0 for a conventional component. ISEG is set to 0 over the length of the segment list; CNT beyond
//   NSEG stays untouched.
POLYPROPS_API void POLY_GETSEG(const int64_t* sel, const int64_t* j, int64_t* nseg, int64_t* iseg,
                               double* cnt);

// Segment make-up of listed components, and the list on the segment basis.
//
//   FSEG(j, s) = (F(s) / Σ F) DPN(i) FAC(s) for j = IDX(i)
//   F = SFRAC, else SFLOW of a polymer; segment counts of an oligomer
//
//   N            in      number of listed components
//   IDX(N)       in      component index of each entry
//   NC           in      number of components of the host
//   FAC(NC)      in      factor of each segment, by component index [1]
//   DPN(N)       out     segments per chain, by position, as POLY_GETDPN gives it with selector 1 [1]
//   KSEG(NC,NC)  out     row j: the number of segments of component j, then their component indices
//   FSEG(NC,NC)  out     amount of segment component s in component j; 0 for conventional components [1]
//   NOUT         out     length of the output list
//   IDXOUT(NC)   out     component indices on the segment basis in the order of first appearance, then zeros
//   IPOS(NC)     out     position of each component in the output list, 0 when absent
//
// - A value counts when it is above 0 and below the missing-value bound. F is SFLOW only when the offset of
//   "SFRAC" is exactly 0; an attribute that is not carried counts as 0.
// - A listed polymer or oligomer without such a value is made of the first segment component of the host,
//   with fraction 1; without any segment component it is treated as a conventional one. One that is not
//   listed has -1 in KSEG(j, 1).
// - DPN is 1.0, and every polymer or oligomer is made of the first segment component, without a polymer block
//   or with a polymer list and an oligomer list that are both empty.
// - A conventional component is appended without looking for it first, and its later position stays in IPOS;
//   a segment is appended once. The output list never exceeds NC entries.
// - An oligomer in several columns of the oligomer table takes the last with a count above 0, beside the
//   amounts of earlier ones. A component listed twice is scaled twice.
// - N < 1: the matrices and lists are cleared all the same, every polymer and oligomer keeps the mark -1,
//   NOUT is 0.
POLYPROPS_API void POLY_GETPSEG(const int64_t* n, const int64_t* idx, const int64_t* nc, const double* fac,
                                double* dpn, int64_t* kseg, double* fseg, int64_t* nout, int64_t* idxout,
                                int64_t* ipos);

// Segment mole fractions of one row of a segment-count matrix, by component.
//
//   SF(s) = SCM(J, s) / Σ SCM(J, s), s in ISEG
//
//   LD          in      leading dimension of SCM, length of SF
//   J           in      component index: the row of SCM
//   NSEG        in      number of segments
//   ISEG(NSEG)  in      component index of each segment
//   SCM(LD,*)   in      segments of component k per molecule of j [1]
//   SF(LD)      out     mole fraction of each segment in J, by component index [1]
//
// - SF is 0 for every component that is not in ISEG; a sum of exactly 0 leaves the counts undivided.
// - Reads nothing but its arguments.
POLYPROPS_API void POLY_GETMFS(const int64_t* ld, const int64_t* j, const int64_t* nseg, const int64_t* iseg,
                               const double* scm, double* sf);

// Segment mass fractions of one row of a segment-count matrix, by component.
//
//   SWF(s) = MW(s) SCM(J, s) / Σ MW(s) SCM(J, s), s in ISEG
//
//   LD             in      leading dimension of SCM, length of SWF
//   J              in      component index: the row of SCM
//   MW(component)  in      molecular weights, segments included [g/mol]
//   NSEG           in      number of segments
//   ISEG(NSEG)     in      component index of each segment
//   SCM(LD,*)      in      segments of component k per molecule of j [1]
//   SWF(LD)        out     mass fraction of each segment in J, by component index [1]
//
// - SWF is 0 for every component that is not in ISEG; a sum of exactly 0 leaves the products undivided.
// - Reads nothing but its arguments.
POLYPROPS_API void POLY_GETWFS(const int64_t* ld, const int64_t* j, const double* mw, const int64_t* nseg,
                               const int64_t* iseg, const double* scm, double* swf);

// A component list on the segment basis, with the host's segment data.
//
//   XOUT(s) = Σ X(i) n(i, s), n = segments per molecule as POLY_GETSEG gives them; X(i) for a conventional
//     entry
//
//   N          in      number of listed components
//   IDX(N)     in      component index of each entry
//   X(N)       in      amounts: mole fractions or flows [mol]
//   UNUSED1    unused  not read
//   WSEG(*)    work    work space, as long as the segment list
//   WCNT(*)    work    work space, as long as the segment list [1]
//   NOUT       out     length of the output list
//   IDXOUT(*)  out     component index of each output entry; room for N entries and one per segment
//   XOUT(*)    out     amount of each output entry; as long as IDXOUT [mol]
//   NORM       in      1 normalises XOUT to sum 1; no other value does
//
// - Entries stand in the order of first appearance. A conventional entry is appended without looking for an
//   earlier one; the amount of a segment goes to every entry that holds its component, and a segment that
//   none holds is appended.
// - A polymer or oligomer for which POLY_GETSEG finds nothing or writes nothing contributes nothing.
// - NORM = 1 with a sum of exactly 0 leaves the amounts as they are.
// - N < 1: NOUT = 0 and nothing else is written.
POLYPROPS_API void POLY_XPTOXS(const int64_t* n, const int64_t* idx, const double* x, const void* unused1,
                               int64_t* wseg, double* wcnt, int64_t* nout, int64_t* idxout, double* xout,
                               const int64_t* norm);

// True mole fractions to mole fractions on the segment basis, with a segment-count matrix.
//
//   XOUT(s) ∝ Σ X(i) SCM(c, s) for a flagged c = IDX(i); X(i) SCM(c, 1) otherwise; normalised to sum 1
//
//   N                 in      number of listed components
//   IDX(N)            in      component index of each entry
//   IFLAG(component)  in      1 marks a polymer or oligomer; no other value does
//   X(N)              in      true mole fractions [1]
//   LD                in      leading dimension of SCM
//   SCM(LD,*)         in      segments of component k per molecule of j; column 1 of an unflagged row holds
//                             its own count [1]
//   NSEG              in      number of segments
//   ISEG(NSEG)        in      component index of each segment
//   NOUT              out     length of the output list
//   IDXOUT(*)         out     component index of each output entry; room for N entries and one per segment
//   XOUT(*)           out     mole fraction of each output entry; as long as IDXOUT [1]
//
// - Entries stand in the order of first appearance. A conventional entry is appended without looking for an
//   earlier one; the amount of a segment goes to every entry that holds its component, and a segment that
//   none holds is appended.
// - Counts that are not above 0 are skipped; the count of a conventional entry is taken as it is.
// - A sum of exactly 0 leaves the amounts as they are.
// - N < 1: NOUT = 0 and nothing else is written.
POLYPROPS_API void POLY_XTTOXS(const int64_t* n, const int64_t* idx, const int64_t* iflag, const double* x,
                               const int64_t* ld, const double* scm, const int64_t* nseg, const int64_t* iseg,
                               int64_t* nout, int64_t* idxout, double* xout);

// Flows of a component list on the segment basis, with a segment-count matrix.
//
//   XOUT(s) = Σ X(i) SCM(c, s) for a flagged c = IDX(i); X(i) otherwise
//
//   N                 in      number of listed components
//   IDX(N)            in      component index of each entry
//   X(N)              in      flows [mol/s]
//   IFLAG(component)  in      1 marks a polymer or oligomer; no other value does
//   LD                in      leading dimension of SCM
//   SCM(LD,*)         in      segments of component k per molecule of j [1]
//   NSEG              in      number of segments
//   ISEG(NSEG)        in      component index of each segment
//   NOUT              out     length of the output list
//   IDXOUT(*)         out     component index of each output entry; room for N entries and one per segment
//   XOUT(*)           out     flow of each output entry; as long as IDXOUT [mol/s]
//   NORM              in      1 normalises XOUT to sum 1; no other value does
//
// - Entries stand in the order of first appearance. A conventional entry is appended without looking for an
//   earlier one; the amount of a segment goes to every entry that holds its component, and a segment that
//   none holds is appended.
// - Counts that are not above 0 are skipped; column 1 of an unflagged row is not read.
// - NORM = 1 with a sum of exactly 0 leaves the flows as they are.
// - N < 1: NOUT = 0 and nothing else is written.
POLYPROPS_API void POLY_PFTOSF(const int64_t* n, const int64_t* idx, const double* x, const int64_t* iflag,
                               const int64_t* ld, const double* scm, const int64_t* nseg, const int64_t* iseg,
                               int64_t* nout, int64_t* idxout, double* xout, const int64_t* norm);

// A property of listed components to the members of a list on the segment basis.
//
//   POUT(j) = Σ P(i) w / WSUM(j), WSUM(j) = Σ w, w = SCM(c, s) > 0, over the flagged c = IDX(i), for a
//     segment s = IDXOUT(j)
//   POUT(j) = P(i) / SCM(c, 1), WSUM(j) = SCM(c, 1) for an unflagged c = IDX(i) that is IDXOUT(j)
//
//   N                 in      number of listed components
//   IDX(N)            in      component index of each entry
//   IFLAG(component)  in      1 marks a polymer or oligomer; no other value does
//   P(N)              in      property of each entry [any]
//   LD                in      leading dimension of SCM
//   SCM(LD,*)         in      segments of component k per molecule of j; column 1 of an unflagged row holds
//                             its own count [1]
//   NSEG              in      number of segments
//   ISEG(NSEG)        in      component index of each segment
//   NOUT              in      length of the target list
//   IDXOUT(NOUT)      in      component index of each target entry
//   POUT(NOUT)        out     property of each target entry [any]
//   WSUM(NOUT)        out     sum of the weights of each target entry [1]
//
// - A weight sum of exactly 0 leaves the numerator: 0 for a target that nothing reaches.
// - An unflagged entry replaces what earlier entries gave its target; later ones add to it.
// - Reads nothing but its arguments. NOUT < 1: nothing is written.
// - N < 1: POUT and WSUM are 0 over NOUT entries.
POLYPROPS_API void POLY_PTTOPS(const int64_t* n, const int64_t* idx, const int64_t* iflag, const double* p,
                               const int64_t* ld, const double* scm, const int64_t* nseg, const int64_t* iseg,
                               const int64_t* nout, const int64_t* idxout, double* pout, double* wsum);

// A property of listed components as the mean over their segments.
//
//   Q(i) = Σ_m (w(m) QS(m) / T) for a polymer, w = SFLOW, T = Σ SFLOW
//   Q(i) = Σ_m (count(m) / Σ count) QS(m) for a component in the oligomer list, QS otherwise
//
//   N              in      number of listed components
//   IDX(N)         in      component index of each entry
//   QS(component)  in      property of each component, segments included [any]
//   Q(N)           out     property of each entry [any]
//
// - Without a polymer block every entry is its own QS; so is a component that is neither a polymer nor in the
//   oligomer list, and a polymer of a run without segments.
// - A flow at or above the missing-value bound counts as 0 in Σ SFLOW and as 1/NSEG in w; "SFLOW" not carried
//   counts as 0.
// - Σ SFLOW not above the zero bound: the plain mean over the segment list. The counts of an oligomer are not
//   tested before their sum divides.
// - N < 1: nothing is written.
// - An oligomer whose counts add up to 0 gives a NaN: plain arithmetic stands; in a run without segments it
//   gets 0.
POLYPROPS_API void POLY_QSGTOQ(const int64_t* n, const int64_t* idx, const double* qs, double* q);

// A property of listed components as the weighted mean over their segments.
//
//   Q(i) = Σ_m QS(m) f(m) WS(m) / Σ_m f(m) WS(m)
//   f = SFLOW / Σ SFLOW, else SFRAC / Σ SFRAC, else 1/NSEG of a polymer; count / Σ count of an oligomer
//
//   WS(component)  in      weight of each segment component [any]
//   N              in      number of listed components
//   IDX(N)         in      component index of each entry
//   QS(component)  in      property of each component, segments included [any]
//   Q(N)           out     property of each entry [any]
//
// - Without a polymer block every entry is its own QS; so is a conventional component, an oligomer that is
//   not in the oligomer list, and a polymer of a run without segments.
// - A flow at or above the missing-value bound counts as 1/NSEG. SFLOW is taken when its sum is above the
//   zero bound, SFRAC when its sum is above the zero bound and below the missing-value bound. An attribute
//   that is not carried counts as 0.
// - Neither the counts of an oligomer nor the sum of the weights are tested before they divide.
// - N < 1: nothing is written.
// - An oligomer whose counts, or whose weighted counts, add up to 0 gives a NaN: plain arithmetic stands.
POLYPROPS_API void POLY_QSTOQA(const double* ws, const int64_t* n, const int64_t* idx, const double* qs,
                               double* q);

// A component list split into polymers and oligomers, and the rest.
//
//   IDXP = the polymers and oligomers of IDX, IDXK = the others, each in the order of the list, with their
//     positions in it
//
//   N         in      number of listed components
//   IDX(N)    in      component index of each entry
//   NP        out     number of polymers and oligomers
//   IDXP(NP)  out     their component indices
//   POSP(NP)  out     their positions in IDX
//   NK        out     number of others
//   IDXK(NK)  out     their component indices
//   POSK(NK)  out     their positions in IDX
//
// - N < 1: both counts are 0 and nothing else is written. IDXP or IDXK may be IDX.
POLYPROPS_API void POLY_IDXSPLIT(const int64_t* n, const int64_t* idx, int64_t* np, int64_t* idxp,
                                 int64_t* posp, int64_t* nk, int64_t* idxk, int64_t* posk);

// Values of two parts of a list merged into the order of the list.
//
//   V(POSP(k)) = VP(k), then V(POSK(k)) = VK(k)
//
//   UNUSED1   unused  not read
//   NP        in      number of values of the first part
//   NK        in      number of values of the second part
//   POSP(NP)  in      target positions of the first part
//   POSK(NK)  in      target positions of the second part
//   VP(NP)    in      values of the first part, reals or integers
//   VK(NK)    in      values of the second part
//   V(*)      out     merged values; as long as the largest position
//
// - Positions that neither part names stay untouched; one that both name holds the value of the second part.
POLYPROPS_API void POLY_PROPMRG(const void* unused1, const int64_t* np, const int64_t* nk,
                                const int64_t* posp, const int64_t* posk, const void* vp, const void* vk,
                                void* v);

// Composition of a sub-list, normalised.
//
//   XS(k) = X(IDX(k)) / Σ X(IDX(k))
//
//   UNUSED1       unused  not read
//   X(component)  in      full composition, by component index [1]
//   N             in      number of entries of the sub-list
//   IDX(N)        in      component index of each entry
//   XS(N)         out     composition of the sub-list [1]
//
// - A sum of exactly 0 leaves the entries unnormalised.
// - N < 1: nothing is written.
POLYPROPS_API void POLY_GETXSUB(const void* unused1, const double* x, const int64_t* n, const int64_t* idx,
                                double* xs);

// Consecutive work areas laid out in a work vector.
//
//   PTR(1) = LAST + 1, PTR(k + 1) = PTR(k) + LEN(k), LAST = PTR(N) + LEN(N) - 1
//
//   LAST    inout   last position in use, before and after
//   N       in      number of work areas
//   LEN(N)  in      length of each area
//   PTR(N)  out     first position of each area
//
// - N < 1: nothing is written.
// - An area of length 0 shares its start with the next one. PTR may be LEN.
POLYPROPS_API void POLY_WRKPOINT(int64_t* last, const int64_t* n, const int64_t* len, int64_t* ptr);

// Water in a component list, by its name.
//
//   JW = the first IDX(i) named "H2O"
//
//   N       in      number of listed components
//   IDX(N)  in      component index of each entry
//   JW      out     component index of water, 0 when the list has none
//
// - The first eight characters of the name must be H2O and five blanks, in upper case.
// - N < 1: JW = 0.
POLYPROPS_API void POLY_SETH2O(const int64_t* n, const int64_t* idx, int64_t* jw);

// ---- mixture properties ----

// Chain averages, true mole fractions, polymer flags and segment fractions of listed components.
//
//   MWN(i) = DPN(i) MRF(i)
//   XT(i) = y(i) / Σ y, y(i) = X(i) MW(IDX(i)) / MWN(i)
//   SMFM(j, m), SWFM(j, m) = mole and mass fraction of the segment at position m in polymer or oligomer j
//
//   N            in      number of listed components
//   X(N)         in      apparent mole fractions, by position [1]
//   IDX(N)       in      component index of each entry
//   DPN(NC)      out     segments per chain, by position [1]
//   MWN(NC)      out     number-average molecular weight, by position [g/mol]
//   XT(NC)       out     true mole fractions, by position [1]
//   MRF(NC)      out     molecular weight per segment, by position [g/mol]
//   W1(NC)       work    work space [1]
//   W2(NC)       work    work space [1]
//   NC           in      number of components of the host, leading dimension of SMFM and SWFM
//   MW(NC)       in      molecular weights of the apparent basis, by component [g/mol]
//   IFLAG(NC)    out     by component, 1 marks a listed polymer or oligomer, 0 otherwise
//   SMFM(NC,NC)  out     segment mole fractions; rows are component indices, columns segment positions [1]
//   SWFM(NC,NC)  out     segment mass fractions; rows are component indices, columns segment positions [1]
//   NSEG         out     number of segments of the run
//   ISEG(NC)     out     component index of each segment
//
// - DPN, MRF and the fractions as POLY_GETDPN, POLY_GETMRF, POLY_GETSMF and POLY_GETSWF give them for
//   attribute selector 1, with all their fallbacks; where those write no fractions the row is 0.
// - Every output is 0 where nothing else is said: entries beyond N or NSEG, rows of components that are not
//   listed or are neither polymer nor oligomer.
// - An entry whose MWN is exactly 0 has y(i) = X(i). Σ y of exactly 0 is not divided by.
// - Without a polymer block NSEG is 0 and both matrices are 0.
// - N < 1: everything is cleared, NSEG and ISEG are given.
POLYPROPS_API void POLY_GETPOL1(const int64_t* n, const double* x, const int64_t* idx, double* dpn,
                                double* mwn, double* xt, double* mrf, double* w1, double* w2,
                                const int64_t* nc, const double* mw, int64_t* iflag, double* smfm,
                                double* swfm, int64_t* nseg, int64_t* iseg);

// Chain averages, polymer flags and segment fractions of listed components.
//
//   MWN(i) = DPN(i) MRF(i)
//   SMFM(j, m), SWFM(j, m) = mole and mass fraction of the segment at position m in polymer or oligomer j
//
//   N            in      number of listed components
//   IDX(N)       in      component index of each entry
//   DPN(NC)      out     segments per chain, by position [1]
//   MWN(NC)      out     number-average molecular weight, by position [g/mol]
//   MRF(NC)      out     molecular weight per segment, by position [g/mol]
//   W1(NC)       work    work space [1]
//   W2(NC)       work    work space [1]
//   NC           in      number of components of the host, leading dimension of SMFM and SWFM
//   IFLAG(NC)    out     by component, 1 marks a listed polymer or oligomer, 0 otherwise
//   SMFM(NC,NC)  out     segment mole fractions; rows are component indices, columns segment positions [1]
//   SWFM(NC,NC)  out     segment mass fractions; rows are component indices, columns segment positions [1]
//   NSEG         out     number of segments of the run
//   ISEG(NC)     out     component index of each segment
//
// - POLY_GETPOL1 without mole fractions; its notes hold here.
// - N < 1: everything is cleared, NSEG and ISEG are given.
POLYPROPS_API void POLY_GETPOL2(const int64_t* n, const int64_t* idx, double* dpn, double* mwn, double* mrf,
                                double* w1, double* w2, const int64_t* nc, int64_t* iflag, double* smfm,
                                double* swfm, int64_t* nseg, int64_t* iseg);

// Segment-count matrix and polymer flags of listed components from their chain averages.
//
//   SCM(j, ISEG(m)) = SMF(m) DPN for a polymer or oligomer j
//   SCM(j, 1) = DPN for any other component j
//
//   N           in      number of listed components
//   IDX(N)      in      component index of each entry
//   NC          in      number of components of the host, leading dimension of SCM
//   W(NC)       work    work space [1]
//   NSEG        out     number of segments of the run
//   ISEG(NC)    out     component index of each segment
//   IFLAG(NC)   out     by component, 1 marks a listed polymer or oligomer, 0 otherwise
//   SCM(NC,NC)  out     segments of component k per molecule of j [1]
//
// - DPN and SMF as POLY_GETDPN and POLY_GETSMF give them for attribute selector 1, with all their fallbacks;
//   where POLY_GETSMF writes nothing the row is 0.
// - Column 1 of a component that is neither polymer nor oligomer holds its own count, whatever component the
//   column belongs to. Every other element is 0, and so are ISEG beyond NSEG and IFLAG of components that are
//   not listed.
// - Without a polymer block NSEG is 0 and only column 1 of listed components that are neither polymer nor
//   oligomer is set.
// - N < 1: everything is cleared, NSEG and ISEG are given.
POLYPROPS_API void POLY_GETPOL3(const int64_t* n, const int64_t* idx, const int64_t* nc, double* w,
                                int64_t* nseg, int64_t* iseg, int64_t* iflag, double* scm);

// Segment-count matrix of listed components straight from their attributes.
//
//   SCM(j, ISEG(m)) = f(m) max(1, D) for a polymer j, f(m) = v(m) / Σ v, v = SFRAC, else SFLOW
//   D = DPN, else MWN / Σ f(m) MW(ISEG(m)), else F / Z
//   Z = ZMOM, else 0.5 Σ SFLOW(e) over e = 1..min(NEND, NSEG)
//   F = FMOM when it is not below Z, else Σ SFLOW(m)
//   SCM(j, ISEG(m)) = count(m, e) for the e-th oligomer of the run, where positive
//   SCM(j, 1) = max(1, DPN parameter) for any other component j
//
//   SEL            in      attribute selector, passed on to the host's attribute search
//   NC             in      number of components of the host, leading dimension of SCM
//   MW(NC)         in      molecular weights by component, for the mean segment weight [g/mol]
//   NSEG           out     number of segments of the run
//   ISEG(segment)  out     component index of each segment
//   N              in      number of listed components
//   IDX(N)         in      component index of each entry
//   SCM(NC,NC)     out     segments of component k per molecule of j [1]
//
// - Without a polymer block SCM is 0, NSEG and ISEG stay untouched. ISEG also stays untouched when no polymer
//   or oligomer is listed.
// - A polymer takes SFLOW only when it does not carry "SFRAC". With neither, or with Σ v at or below the zero
//   bound: equal shares 1/NSEG. Values at or above the missing-value bound are used as they are.
// - "DPN" is taken from 1.0 on, however large; "MWN" when it is not below the mean segment molecular weight
//   and that is not exactly 0. F / Z needs both above the zero bound; D is 1.0 otherwise.
// - The estimate of Z without "ZMOM" takes SFLOW at the entry numbers of the end-segment list: it is half the
//   flow of the end segments when these lead the segment list. An attribute that is not carried counts as 0.
// - An oligomer with one positive count and a DPN parameter above 1.0: that count is the DPN parameter. One
//   that stands more than once in the oligomer list is taken column by column. One that is not in the list
//   has a row of 0.
// - Without the DPN parameter vector a DPN parameter is 1.0; so is one that is not a number.
// - A sum of fractions that is not a number gives equal shares.
// - N < 1: SCM is cleared and NSEG is written.
POLYPROPS_API void POLY_GETPOL(const int64_t* sel, const int64_t* nc, const double* mw, int64_t* nseg,
                               int64_t* iseg, const int64_t* n, const int64_t* idx, double* scm);

// Segment-count matrix, lengths and flags of listed components straight from their attributes.
//
//   SCM(j, ISEG(m)) = v(m) DPN(i) / Σ v for a polymer j = IDX(i), v = SFRAC, else SFLOW
//   DPN(i) = "DPN", else max(1, F / Z) for a polymer
//   Z = ZMOM, else 0.5 Σ SFLOW(e) over e = 1..min(NEND, NSEG)
//   F = FMOM, else Σ SFLOW(m)
//   SCM(j, ISEG(m)) = count(m, e) / V × DPN(i), V = Σ count(m, e), for the e-th oligomer of the run
//   SCM(j, 1) = 1 and DPN(i) = max(1, DPN parameter) for any other component j
//
//   SEL         in      attribute selector, passed on to the host's attribute search
//   N           in      number of listed components
//   IDX(N)      in      component index of each entry
//   NC          in      number of components of the host, leading dimension of SCM
//   NSEG        out     number of segments of the run
//   ISEG(NC)    out     component index of each segment
//   NPOL        out     number of entries that are polymers or oligomers
//   IFLAG(NC)   out     by component, 1 marks a listed polymer or oligomer, 0 otherwise
//   SCM(NC,NC)  out     segments of component k per molecule of j [1]
//   DPN(NC)     out     segments per chain, by position [1]
//
// - Neither polymer nor oligomer in the list: NPOL is 0 and everything else stays untouched.
// - A polymer takes "DPN" when 1.0 < value < missing-value bound. F / Z needs both above the zero bound;
//   DPN(i) is 1.0 otherwise. "FMOM" counts whenever it is carried.
// - SFLOW is taken only when "SFRAC" is not carried. Values at or above the missing-value bound count as 0; Σ
//   v at or below the zero bound: SCM(j, ISEG(m)) = DPN(i) / NSEG. An attribute that is not carried counts as
//   0.
// - The estimate of Z without "ZMOM" takes SFLOW at the entry numbers of the end-segment list: it is half the
//   flow of the end segments when these lead the segment list.
// - An oligomer whose DPN parameter is within 1e-10 of 1 has DPN(i) = max(1, V); any other has its DPN
//   parameter. V of exactly 0 is not divided by. One that stands more than once in the oligomer list takes
//   its last column, V adding up from column to column.
// - Without the DPN parameter vector a DPN parameter is 1.0; so is one that is not a number.
// - Without a polymer block NSEG is 0 and the rows of polymers and oligomers are 0; polymers still take
//   DPN(i) from their attributes, the estimate of Z and Σ SFLOW being 0.
// - An oligomer that is not in the oligomer list has a row of zeros; its DPN is its parameter, 1.0 when that
//   was left at 1.
// - With a polymer or oligomer listed, DPN beyond N, ISEG beyond NSEG and all other elements of SCM are 0.
// - A sum of fractions that is not a number gives equal shares.
POLYPROPS_API void POLY_GETPALL(const int64_t* sel, const int64_t* n, const int64_t* idx, const int64_t* nc,
                                int64_t* nseg, int64_t* iseg, int64_t* npol, int64_t* iflag, double* scm,
                                double* dpn);

// Segment-count matrix of listed components, one polymer being given by the molecular weight of its chains.
//
//   SCM(J, ISEG(m)) = FRAC(m) R / S, R = MWJ / W
//   S = Σ FRAC(m), W = Σ MW(ISEG(m)) FRAC(m) / S
//   SCM(k, 1) = 1 for every other listed component k
//
//   J           in      component index of the polymer
//   MWJ         in      molecular weight that the chains of J are to have [g/mol]
//   N           in      number of listed components
//   IDX(N)      in      component index of each entry
//   NC          in      number of components of the host, leading dimension of SCM
//   MW(NC)      in      molecular weights by component, segments included [g/mol]
//   IFLAG(NC)   out     by component, 1 for J and 0 for the other listed components
//   SCM(NC,NC)  out     segments of component k per molecule of j [1]
//   NSEG        out     number of segments of J
//   ISEG(*)     out     component index of each segment of J
//   FRAC(*)     out     segments of each kind per chain of J [1]
//
// - NSEG, ISEG and FRAC as POLY_GETSEG gives them for attribute selector 1. Where it writes nothing NSEG is
//   0, ISEG and FRAC stay untouched.
// - ISEG and FRAC need as many entries as the run has segments; as many again for each further place of an
//   oligomer in the oligomer list.
// - IFLAG of components that are not listed stays untouched.
// - Row J stays 0 when J is not listed, and when S or W is exactly 0.
// - N < 1: SCM is cleared, NSEG, ISEG and FRAC are given.
POLYPROPS_API void POLY_GETPMIX(const int64_t* j, const double* mwj, const int64_t* n, const int64_t* idx,
                                const int64_t* nc, const double* mw, int64_t* iflag, double* scm,
                                int64_t* nseg, int64_t* iseg, double* frac);

// True mole fractions of listed components, one polymer being given by the molecular weight of its chains.
//
//   XT(i) = y(i) / Σ y, y(i) = MW(IDX(i)) X(i) / MWN(i), MWN(i) = MWJ for IDX(i) = J
//
//   J              in      component index of the polymer
//   MWJ            in      molecular weight of the chains of J [g/mol]
//   N              in      number of listed components
//   IDX(N)         in      component index of each entry
//   X(N)           in      apparent mole fractions, by position [1]
//   XT(N)          out     true mole fractions, by position [1]
//   MWN(N)         inout   number-average molecular weights, by position; entries of J become MWJ [g/mol]
//   UNUSED1        unused  never read
//   MW(component)  in      molecular weights of the apparent basis [g/mol]
//
// - Reads nothing but its arguments.
// - MWN of every other component stays as it is.
// - An entry whose MWN is exactly 0 has y(i) = X(i). Σ y of exactly 0 is not divided by.
// - N < 1: nothing is written.
// - MWN and MW must not overlap.
POLYPROPS_API void POLY_GETPMIX1(const int64_t* j, const double* mwj, const int64_t* n, const int64_t* idx,
                                 const double* x, double* xt, double* mwn, const void* unused1,
                                 const double* mw);

// Segment-count matrix that breaks only the listed oligomers into segments.
//
//   B(j, ISEG(m)) = A(j, ISEG(m)) for an oligomer j, where positive
//   B(j, 1) = 1 for any other component j, polymers included
//
//   N              in      number of listed components
//   IDX(N)         in      component index of each entry
//   NC             in      number of components of the host, leading dimension of A and B
//   A(NC,NC)       in      segments of component k per molecule of j [1]
//   NSEG           out     number of segments of the run
//   ISEG(segment)  out     component index of each segment
//   B(NC,NC)       out     segments of component k per molecule of j, oligomers only [1]
//   IFLAG(NC)      out     by component, 1 marks a listed oligomer, 0 otherwise
//
// - Without a polymer block NSEG is 0, B and IFLAG are 0, ISEG stays untouched.
// - ISEG stays untouched when no oligomer is listed.
// - An oligomer that is not in the oligomer list is flagged and has a row of 0.
// - N < 1: B and IFLAG are cleared, NSEG is given.
POLYPROPS_API void POLY_GETOLI(const int64_t* n, const int64_t* idx, const int64_t* nc, const double* a,
                               int64_t* nseg, int64_t* iseg, double* b, int64_t* iflag);

// A property of listed components, averaged over segments by number.
//
//   OUT(i) = Σ_k Q(s) SCM(j, s) / Σ_k SCM(j, s), s = IK(k), for a flagged component j = IJ(i), Q(j) otherwise
//
//   LD                in      leading dimension of SCM
//   Q(component)      in      the property of segments and components [any]
//   NK                in      number of segments
//   IK(NK)            in      component index of each segment
//   SCM(LD,*)         in      segments of component k per molecule of j [1]
//   NJ                in      number of listed components
//   IJ(NJ)            in      component index of each entry
//   OUT(NJ)           out     the property of each entry, by position [any]
//   IFLAG(component)  in      1 marks a polymer or oligomer; no other value does
//
// - Reads its arguments and the zero bound.
// - A flagged component whose row sum is at or below the zero bound, or is not a number, has its own Q(j).
// - NJ < 1: nothing is written.
POLYPROPS_API void POLY_GETMAVG(const int64_t* ld, const double* q, const int64_t* nk, const int64_t* ik,
                                const double* scm, const int64_t* nj, const int64_t* ij, double* out,
                                const int64_t* iflag);

// A property of one polymer, averaged over segments by mass.
//
//   OUT = Σ_k SCM(J, s) Q(s) WT(s) / Σ_k SCM(J, s) WT(s), s = IK(k)
//
//   LD             in      leading dimension of SCM
//   WT(component)  in      weight factors; molecular weights give the average by mass [any]
//   NK             in      number of segments; below 1 every sum is 0
//   IK(NK)         in      component index of each segment
//   SCM(LD,*)      in      segments of component k per molecule of j [1]
//   J              in      component index of the polymer
//   Q(component)   in      the property of the segments [any]
//   OUT            out     the property of J [any]
//
// - Reads nothing but its arguments.
// - A denominator of exactly 0 is not divided by: OUT is the numerator, 0 for NK < 1.
POLYPROPS_API void POLY_GETSAVG(const int64_t* ld, const double* wt, const int64_t* nk, const int64_t* ik,
                                const double* scm, const int64_t* j, const double* q, double* out);

// A property of one polymer: its own value where given, else averaged over segments by mass.
//
//   OUT = Q(J) for zero bound < Q(J) < missing-value bound, else Σ_k SCM(J, s) Q(s) WT(s) / Σ_k SCM(J, s)
//     WT(s), s = IK(k)
//
//   LD             in      leading dimension of SCM
//   WT(component)  in      weight factors; molecular weights give the average by mass [any]
//   NK             in      number of segments; below 1 every sum is 0
//   IK(NK)         in      component index of each segment
//   SCM(LD,*)      in      segments of component k per molecule of j [1]
//   J              in      component index of the polymer
//   Q(component)   in      the property of segments and polymers [any]
//   OUT            out     the property of J [any]
//
// - Reads its arguments and the two bounds, which are themselves excluded.
// - A denominator of exactly 0 is not divided by: OUT is the numerator, 0 for NK < 1.
POLYPROPS_API void POLY_GETPOLQ(const int64_t* ld, const double* wt, const int64_t* nk, const int64_t* ik,
                                const double* scm, const int64_t* j, const double* q, double* out);

// A property of one polymer, averaged over segments by number.
//
//   OUT = Σ_k SCM(J, s) Q(s) / Σ_k SCM(J, s), s = IK(k)
//
//   LD            in      leading dimension of SCM
//   NK            in      number of segments; below 1 every sum is 0
//   IK(NK)        in      component index of each segment
//   SCM(LD,*)     in      segments of component k per molecule of j [1]
//   J             in      component index of the polymer
//   Q(component)  in      the property of the segments [any]
//   OUT           out     the property of J [any]
//
// - Reads nothing but its arguments.
// - A row sum of exactly 0 is not divided by: OUT is the numerator, 0 for NK < 1.
POLYPROPS_API void POLY_GETFAVG(const int64_t* ld, const int64_t* nk, const int64_t* ik, const double* scm,
                                const int64_t* j, const double* q, double* out);

// A property of one polymer, averaged over segments by number; the same as POLY_GETFAVG.
//
//   OUT = Σ_k SCM(J, s) Q(s) / Σ_k SCM(J, s), s = IK(k)
//
//   LD            in      leading dimension of SCM
//   NK            in      number of segments; below 1 every sum is 0
//   IK(NK)        in      component index of each segment
//   SCM(LD,*)     in      segments of component k per molecule of j [1]
//   J             in      component index of the polymer
//   Q(component)  in      the property of the segments [any]
//   OUT           out     the property of J [any]
//
// - Reads nothing but its arguments.
// - A row sum of exactly 0 is not divided by: OUT is the numerator, 0 for NK < 1.
POLYPROPS_API void POLY_GETFAVGT(const int64_t* ld, const int64_t* nk, const int64_t* ik, const double* scm,
                                 const int64_t* j, const double* q, double* out);

// Mean segment molecular weight from a segment-count matrix, by component.
//
//   OUT(j) = Σ_m MW(s) SCM(j, s) / Σ_m SCM(j, s), s = ISEG(m), for a flagged component j = IDX(i), MW(j)
//     otherwise
//
//   N                 in      number of listed components
//   IDX(N)            in      component index of each entry
//   LD                in      leading dimension of SCM
//   MW(component)     in      molecular weights, segments included [g/mol]
//   NSEG              in      number of segments; below 1 every sum is 0
//   ISEG(NSEG)        in      component index of each segment
//   IFLAG(component)  in      1 marks a polymer or oligomer; no other value does
//   SCM(LD,*)         in      segments of component k per molecule of j [1]
//   OUT(component)    out     molecular weight per segment, by component [g/mol]
//
// - Reads nothing but its arguments.
// - A row sum of exactly 0 is not divided by: OUT(j) is the numerator, 0 for NSEG < 1.
// - OUT of components that are not listed stays untouched; N < 1: nothing is written.
POLYPROPS_API void POLY_GETMWS(const int64_t* n, const int64_t* idx, const int64_t* ld, const double* mw,
                               const int64_t* nseg, const int64_t* iseg, const int64_t* iflag,
                               const double* scm, double* out);

// Molecular weight of a chain from a segment-count matrix, by position.
//
//   OUT(i) = Σ_m MW(s) SCM(j, s), s = ISEG(m), for a flagged component j = IDX(i), MW(j) otherwise
//
//   N                 in      number of listed components
//   IDX(N)            in      component index of each entry
//   LD                in      leading dimension of SCM
//   MW(component)     in      molecular weights, segments included [g/mol]
//   NSEG              in      number of segments; below 1 every sum is 0
//   ISEG(NSEG)        in      component index of each segment
//   IFLAG(component)  in      1 marks a polymer or oligomer; no other value does
//   SCM(LD,*)         in      segments of component k per molecule of j [1]
//   OUT(N)            out     number-average molecular weight, by position [g/mol]
//
// - Reads nothing but its arguments.
// - It is what POLY_GETMWN1 gives, the arguments in another order.
// - N < 1: nothing is written.
POLYPROPS_API void POLY_GETMWP(const int64_t* n, const int64_t* idx, const int64_t* ld, const double* mw,
                               const int64_t* nseg, const int64_t* iseg, const int64_t* iflag,
                               const double* scm, double* out);

// Weight-average molecular weight from a segment-count matrix and the moments of the stream, by position.
//
//   OUT(i) = PDI(i) MWP(i), PDI as POLY_GETPOLI gives it for attribute selector 1, MWP as POLY_GETMWP gives
//     it
//
//   N                 in      number of listed components
//   IDX(N)            in      component index of each entry
//   LD                in      leading dimension of SCM
//   MW(component)     in      molecular weights, segments included [g/mol]
//   NSEG              in      number of segments; below 1 every sum is 0
//   ISEG(NSEG)        in      component index of each segment
//   IFLAG(component)  in      1 marks a polymer or oligomer; no other value does
//   SCM(LD,*)         in      segments of component k per molecule of j [1]
//   OUT(N)            out     weight-average molecular weight, by position [g/mol]
//
// - A component that is not flagged has its PDI times MW(j).
// - PDI with all its fallbacks, whether the component is flagged or not.
// - N < 1: nothing is written.
POLYPROPS_API void POLY_GETWWP(const int64_t* n, const int64_t* idx, const int64_t* ld, const double* mw,
                               const int64_t* nseg, const int64_t* iseg, const int64_t* iflag,
                               const double* scm, double* out);

// Polydispersity index of listed components, never below 1 where moments give it.
//
//   PDI(i) = max(1, (SMOM / F) / (F / ZMOM)) for a polymer, the PDI parameter otherwise
//   F = Σ SFLOW(s) over s = 1..NSEG; FMOM is not read
//
//   SEL     in      attribute selector, passed on to the host's attribute search
//   N       in      number of listed components
//   IDX(N)  in      component index of each entry
//   PDI(N)  out     polydispersity index, by position [1]
//
// - Without the PDI parameter vector a PDI parameter is 1.0. A parameter is given as it stands, also below 1.
// - Without a polymer block, without polymers in the run, or with the host's PDI mode at 100, every entry is
//   its PDI parameter; so are oligomers.
// - A polymer keeps its PDI parameter unless it carries "SMOM", zero bound < ZMOM < missing-value bound, both
//   F and Σ MW(s) SFLOW(s) are at or above the zero bound, and F is not exactly 0. An attribute that is not
//   carried counts as 0.
// - Past these tests 1.0 when SMOM is not strictly between the two bounds: the parameter then does not count.
// - N < 1: nothing is written.
POLYPROPS_API void POLY_GETPOLI(const int64_t* sel, const int64_t* n, const int64_t* idx, double* pdi);

// ---- binary interaction parameters ----

// Binary parameter of one pair at a temperature, and its temperature derivative.
//
//   VALUE = P1 + P2/x + P3 ln(x) + P4 x + P5 x², x = T / TR, summed as ((P5 x + P4) x) + ((P2/x + P1) + ln(x)
//     P3)
//   DERIV = (P4 - P2/x² + P3/x + 2 P5 x) / TR
//
//   T      in      temperature [K]
//   P1     in      constant coefficient [as VALUE]
//   P2     in      coefficient of 1/x [as VALUE]
//   P3     in      coefficient of ln(x) [as VALUE]
//   P4     in      coefficient of x [as VALUE]
//   P5     in      coefficient of x² [as VALUE]
//   TR     in      reference temperature [K]
//   MODE   in      1 value, 2 derivative, 3 both; above 3 derivative, below 1 neither
//   VALUE  out     the parameter; 0 when not asked for [that of the coefficients]
//   DERIV  out     its derivative with respect to T; 0 when not asked for [that of the coefficients, per K]
//
// - Both results are always written.
// - A mode that asks for nothing gives 0 twice, whatever the other arguments hold; no logarithm is taken for
//   a mode that asks for the derivative alone.
// - A reference temperature of 0, or T / TR not above 0 where a logarithm is asked for, gives what plain
//   arithmetic gives.
POLYPROPS_API void POLY_TBPARA(const double* t, const double* p1, const double* p2, const double* p3,
                               const double* p4, const double* p5, const double* tr, const int64_t* mode,
                               double* value, double* deriv);

// Binary parameters of all ordered pairs at a temperature, diagonal included.
//
//   KIJ(i, j) = ((P5 x + P4) x) + (ln(x) P3 + P1 + P2/x), x = T / P(K, i, j), Pl = P(l, i, j)
//
//   T         in      temperature [K]
//   N         in      parameter positions per pair
//   K         in      position of the reference temperature
//   M         in      number of components
//   P(N,M,M)  in      coefficients P1..P5 at positions 1..5, reference temperature at position K, of each
//                     ordered pair [as KIJ; K for the reference temperature]
//   KIJ(M,M)  out     parameter of each ordered pair [that of the coefficients]
//
// - A pair whose reference temperature is 0 or not finite, or whose x is not greater than 0, gets 0; so does
//   every pair when K is not in 1..N.
// - A coefficient position beyond N counts as 0.
// - M < 1: nothing is written.
POLYPROPS_API void POLY_TBKIJ3(const double* t, const int64_t* n, const int64_t* k, const int64_t* m,
                               const double* p, double* kij);

// Binary parameters of the pairs of selected rows at a temperature, and their temperature derivatives.
//
//   KIJ(i, j) = ((P5 x + P4) x) + (ln(x) P3 + P1 + P2/x), x = T / P(K, i, j), Pl = P(l, i, j)
//   DKIJ(i, j) = (P4 - P2/x² + P3/x + 2 P5 x) / P(K, i, j)
//
//   T          in      temperature [K]
//   N          in      parameter positions per pair
//   K          in      position of the reference temperature
//   M          in      number of components
//   P(N,M,M)   in      coefficients P1..P5 at positions 1..5, reference temperature at position K, of each
//                      ordered pair [as KIJ; K for the reference temperature]
//   KIJ(M,M)   out     parameter of each ordered pair [that of the coefficients]
//   DKIJ(M,M)  out     its derivative with respect to T [that of the coefficients, per K]
//   MODE       in      2 asks for derivatives; no other value does
//   SELECT(M)  in      exactly 1.0 selects the row of a component [1]
//
// - The diagonal and the rows that are not selected are 0 in both matrices; DKIJ is 0 throughout unless MODE
//   = 2.
// - There is no default reference temperature: every element is 0 when K is not in 1..N.
// - A coefficient position beyond N counts as 0.
// - M < 1: nothing is written.
// - The reference temperature of a selected pair is not tested: plain arithmetic stands, so that one of 0
//   gives an infinity or a NaN, which POLY_TBKIJ3 does not.
POLYPROPS_API void POLY_TBKIJ4(const double* t, const int64_t* n, const int64_t* k, const int64_t* m,
                               const double* p, double* kij, double* dkij, const int64_t* mode,
                               const double* select);

// Binary parameters of selected pairs at a temperature, in the form that the number of positions names.
//
//   KIJ(i, j) = P1' + P2' x for N = 2
//   KIJ(i, j) = P1 + P2 x + P3/x for N = 4
//   KIJ(i, j) = ((P5 x + P4) x + P2/x + P1) + ln(x) P3 for any other N
//   x = T / P(K, i, j), or T / 298.15 with K = 0; Pl = P(l, i, j), Pl' = 0 for a coefficient above 1e30
//
//   T          in      temperature [K]
//   N          in      parameter positions per pair; names the form
//   K          in      position of the reference temperature, 0 for 298.15 K
//   M          in      number of components
//   P(N,M,M)   in      coefficients from position 1 on, reference temperature at position K, of each ordered
//                      pair [as KIJ; K for the reference temperature]
//   SELECT(M)  in      exactly 1.0 selects the row of a component [1]
//   MASK(M)    in      anything but 0 drops a component's row and column
//   KIJ(M,M)   out     parameter of each ordered pair [that of the coefficients]
//
// - The diagonal and every element that is not selected are 0.
// - Every element is 0 when K is neither 0 nor in 1..N.
// - A coefficient position beyond N counts as 0.
// - M < 1: nothing is written.
// - The reference temperature of a selected pair is not tested: plain arithmetic stands, so that one of 0
//   gives an infinity or a NaN, which POLY_TBKIJ3 does not.
POLYPROPS_API void POLY_KIJ5(const double* t, const int64_t* n, const int64_t* k, const int64_t* m,
                             const double* p, const double* select, const int64_t* mask, double* kij);

// Temperature times the temperature derivative of the parameters of POLY_KIJ5.
//
//   DKIJ(i, j) = x P2' for N = 2
//   DKIJ(i, j) = P2 x - P3/x for N = 4
//   DKIJ(i, j) = -P2/x + P3 + P4 x + 2 P5 x² for any other N
//   x = T / P(K, i, j), or T / 298.15 with K = 0; Pl = P(l, i, j), Pl' = 0 for a coefficient above 1e30
//
//   T          in      temperature [K]
//   N          in      parameter positions per pair; names the form
//   K          in      position of the reference temperature, 0 for 298.15 K
//   M          in      number of components
//   P(N,M,M)   in      coefficients from position 1 on, reference temperature at position K, of each ordered
//                      pair [as DKIJ; K for the reference temperature]
//   SELECT(M)  in      exactly 1.0 selects the row of a component [1]
//   MASK(M)    in      anything but 0 drops a component's row and column
//   DKIJ(M,M)  out     T dKIJ/dT of each ordered pair [that of the coefficients]
//
// - The diagonal and every element that is not selected are 0.
// - Every element is 0 when K is neither 0 nor in 1..N.
// - A coefficient position beyond N counts as 0.
// - M < 1: nothing is written.
// - The reference temperature of a selected pair is not tested: plain arithmetic stands, so that one of 0
//   gives an infinity or a NaN, which POLY_TBKIJ3 does not.
POLYPROPS_API void POLY_DKIJ5(const double* t, const int64_t* n, const int64_t* k, const int64_t* m,
                              const double* p, const double* select, const int64_t* mask, double* dkij);

// Completes a binary parameter array in which pairs are given in only one order of their components.
//
//   P(l, b, a) = P(l, a, b), symmetric, for a pair a < b of which exactly one order is 0; either order may be
//     the given one
//   P(l, b, a) = -P(l, a, b) at the antisymmetric positions
//
//   N         in      parameter positions per pair
//   M         in      number of components
//   P(N,M,M)  inout   parameter positions of each ordered pair [any]
//   K         in      number of leading positions that MODE speaks of; 0 below 0, N above N
//   MODE      in      1: the leading positions are symmetric; any other value: antisymmetric
//
// - Positions after the K leading ones are always symmetric.
// - A pair that is given in both orders, or in neither, is left as it is, also when its orders disagree. Not
//   a number counts as given, a negative zero as 0.
// - The diagonal is left as it is; with M < 2 nothing changes.
POLYPROPS_API void POLY_TBPARI(const int64_t* n, const int64_t* m, double* p, const int64_t* k,
                               const int64_t* mode);

// ---- input semantics ----

// Checks the polymer input paragraph, reports bad entries and builds the polymer block from the rest.
//
//   polymer block: segments, polymers, oligomers with their make-up, catalysts, initiators, counts, attribute
//     layout, distribution requests
//   layout table: groups 1..5 hold NSEG + 1 elements each, groups 6..11 one more than there are catalyst site
//     types, laid end to end
//
//   UNUSED1       unused  not used
//   OP            in      2 checks the paragraph, 5 answers only; anything else does nothing
//   CONTEXT       in      semantics context, passed on to the host's property semantics
//   PARAGRAPH(*)  in      the paragraph, handed to the host's sentence service
//   UNUSED2       unused  not used
//   STATUS        inout   5 for OP = 5; otherwise what the host's sentence service makes of it
//
// - OP = 5 sets STATUS to 5 and touches nothing else.
// - Messages go through the host's message channel under the name POLSEM. A bad entry is reported and
//   dropped, the others are processed. Of the checks only a paragraph without sentences, segments without a
//   polymer or oligomer, and polymers or oligomers without a segment end the routine; nothing is built then.
//   A paragraph that names none of the three is accepted.
// - STATUS 2 from the host's sentence service ends the routine with nothing built. When memory for its work
//   space is exhausted, the routine sets STATUS to 2 itself and builds nothing.
// - The end of the sentences is told to the host last, when word 1 of PARAGRAPH is at least 1, and only by a
//   check that was not ended early.
// - A polymer or a segment that is named twice stands where it was named first; the repeat is reported
//   (messages 5 and 11) and dropped from every list.
// - A segment of another type than 1 to 4 stands in the segment list alone.
// - An unknown catalyst or initiator is reported and keeps its place, which holds 0; so does the real value
//   of a catalyst.
// - An oligomer ID of two zero words stands for the last one written. Of two counts of the same segment in
//   the same oligomer the later one holds; an oligomer without any accepted count is listed with zeros.
// - Blocks of an earlier paragraph are used again. Lists that are too short are enlarged; a catalyst block or
//   an oligomer block that might be too small is freed and made anew. Without oligomers in the paragraph an
//   earlier oligomer block stays, but lists none when the number of segments has changed.
// - Parameter block: the number of site types and the real are always written, 0 without a catalyst-site
//   sentence; its other words only when the new value is not zero. Of the attribute layout table word 1 and
//   the reals are not written.
// - An attribute entry that lacks what a polymer or a catalyst needs, or names EFRAC without an end segment,
//   is not forwarded; if the host suppresses the message, it is. An entry whose ID is unknown and whose
//   message is suppressed counts as neither polymer nor catalyst. The forwarded sentence carries the ID as
//   written.
// - A distribution request of another type than 1 to 4 is neither stored nor reported.
// - A list start outside its sentence, or a count beyond it, is cut to what the sentence holds; missing words
//   read as 0.
// - Messages 1 to 7, 10 and 11 are printed whether or not they were composed, messages 8 and 9 when the
//   host's check is not 0, the others when it is 1.
// - The catalyst block has at least one integer word; places that hold 0 are not asked for an attribute
//   entry. A negative number of site types counts as 0 in the attribute layout table, which is made anew each
//   time; so are the distribution blocks, whose predecessors are not freed. Without an attribute sentence
//   word 5 of an existing polymer block keeps the earlier copy.
// - Allocates in the host's store. Blocks handed to the host's property semantics and copies of sentences are
//   not freed.
// - Messages print NUL characters of a stored name as blanks.
// - After a paragraph without oligomers the oligomer count of the parameter block keeps its earlier value,
//   since a count of 0 is not written.
POLYPROPS_API void POLY_POLSEM(const int64_t* unused1, const int64_t* op, const void* context,
                               const int64_t* paragraph, const int64_t* unused2, int64_t* status);

// Writes the values of a CATSCALE sentence over component attributes.
//
//   column 1 of the attribute's elements 1..m = B(i) where B(i) < missing-value bound
//   column 3 of the attribute's elements 1..m = A(i) where A(i) < missing-value bound, for each entry i in
//     order
//
//   OP        in      2 applies the sentence; anything else does nothing
//   SENTENCE  in      id of the block whose word 4 names the CATSCALE data block
//   STATUS    out     -1 when every entry was applied, 1 when one named an attribute that its component does
//                     not carry
//   UNUSED1   unused  not used
//   LOCATED   in      id of a block that is located and not read
//
// - OP other than 2: nothing is read or written, STATUS included. No entries: STATUS is -1.
// - An attribute that the component does not carry is reported under the name CATSCALE (severity 1, message
//   1), changes nothing and sets STATUS to 1, also when the host suppresses the message; the other entries
//   are applied. A component without an attribute block carries none.
// - A value at or above the missing-value bound, or one that is not a number, leaves its column untouched;
//   this is not reported.
// - An attribute without elements is left alone and not reported. Column 2 is never touched.
POLYPROPS_API void POLY_CATSCALESEM(const int64_t* op, const int64_t* sentence, int64_t* status,
                                    const int64_t* unused1, const int64_t* located);

// ---- chain-length distributions ----

// Chain-length grid on a logarithmic scale, and cleared arrays to accumulate distributions in.
//
//   X(k) = trunc(10^((k L)/N)), L = log10(PMAX), k = 1..N
//   X(k) = X(k - 1) + 1 where that is not greater than X(k - 1); X(0) counts as 0
//
//   N         in      number of grid points
//   M         in      number of sections or site types
//   X(N)      out     chain lengths, whole numbers, strictly increasing [1]
//   PMAX      in      longest chain of the grid [1]
//   W(M+1)    out     running weights, the total last: set to 0 [any amount]
//   Y(N)      out     composite distribution: set to 0 [1]
//   COL(N,M)  out     distribution of each section or site type: set to 0 [1]
//
// - The last point may fall one below a whole-number PMAX through rounding; a grid finer than the whole
//   numbers reaches beyond PMAX.
// - A longest chain that is not greater than 0 or not finite gives the grid 1, 2, …, N.
// - N < 1: only W is cleared. M = 0: W is one word, COL is left as it is.
POLYPROPS_API void POLY_CSDINI(const int64_t* n, const int64_t* m, double* x, const double* pmax, double* w,
                               double* y, double* col);

// Mixes two distributions in proportion to their weights.
//
//   Y(k) = (Y1(k) W1 + Y2(k) W2) / W, W = W1 + W2
//
//   N      in      number of grid points
//   Y1(N)  in      first distribution [1]
//   W1     in      its weight [any amount]
//   Y2(N)  in      second distribution [1]
//   W2     in      its weight [as W1]
//   Y(N)   out     the mixture; may be Y1 or Y2 [1]
//   W      out     its weight; may be W1 or W2 [as W1]
//
// - W is always written. A W that is not greater than the zero bound leaves Y as it is.
// - N < 1: only W is written.
POLYPROPS_API void POLY_CSDADD(const int64_t* n, const double* y1, const double* w1, const double* y2,
                               const double* w2, double* y, double* w);

// Adds one increment of polymer, made by several site types, to running chain-length distributions.
//
//   COL(k, j) = (g_j(X(k)) F(j) + COL(k, j) W0) / (W0 + Σ F), W0 = W(NS + 1), for each site type j with F(j)
//     at or above the zero bound
//   Y(k) = Σ_j COL(k, j)
//   g(x) = e^c x s (0.5 x β s + τ) for an even MODE
//   g(x) = e^c x x s (0.5 x β s + τ) for an odd MODE
//   s = τ + β, c = max(-250, min(80.59, -s x))
//
//   N          in      number of grid points
//   NS         in      number of site types
//   MODE       in      even: weight-fraction form; odd: times the chain length once more (GPC form)
//   TAU(NS)    in      site parameter τ [1]
//   BETA(NS)   in      site parameter β [1]
//   F(NS)      in      amount of new polymer of each site type [as W]
//   X(N)       in      chain lengths [1]
//   W(NS+1)    inout   running weight of each site type, the total last [any amount]
//   Y(N)       inout   running composite distribution [1]
//   COL(N,NS)  inout   running distribution of each site type [1]
//
// - NS < 1, or Σ F below the zero bound: nothing changes.
// - A site type whose F is not at or above the zero bound keeps its column and its weight; its column still
//   counts in Y.
// - A new total weight at or below the zero bound: Y is left as it is; the weights, and the columns unless
//   that total is exactly 0, are updated.
// - N < 1: only the weights are updated.
POLYPROPS_API void POLY_CSDCAL(const int64_t* n, const int64_t* ns, const int64_t* mode, const double* tau,
                               const double* beta, const double* f, const double* x, double* w, double* y,
                               double* col);

// Writes a composite distribution to the host's report, and it and its sections to the host's summary file.
//
//   Area = Σ a(k), Pn = 1 / Σ a(k)/X(k + 1), Pw = Σ a(k) X(k + 1), PDI = Pw Σ a(k)/X(k + 1), k = 1..N-1
//   a(k) = 0.5 (h(k) + h(k + 1)) (X(k + 1) - X(k)), h(k) = Y(k, 1), or Y(k, 1)/X(k) in GPC form
//
//   CONTEXT    in      the host's summary context, passed on to it
//   UNUSED1    unused  not used
//   UNUSED2    unused  not used
//   UNUSED3    unused  not used
//   UNUSED4    unused  not used
//   UNUSED5    unused  not used
//   UNUSED6    unused  not used
//   UNUSED7    unused  not used
//   UNUSED8    unused  not used
//   UNUSED9    unused  not used
//   N          in      number of grid points
//   X(N)       in      chain lengths [1]
//   Y(N,NC+1)  in      distributions: the composite in column 1, section c in column c + 1 [1]
//   NC         in      number of sections
//   SCALE      in      factor on the chain lengths of the summary file [any]
//   SCALED     in      1 applies SCALE; no other value does
//   GPC        in      not 0: Y holds chain length times weight fraction
//
// - The report has a title, the table of column 1 in as many pages as it needs, and one line with Area, Pn,
//   Pw and PDI; with Area below the zero bound, which N < 2 gives when the bound is positive, the title
//   alone.
// - Real fields are 11 wide with 4 significant digits, as the Fortran edit G11.4 prints them; negative zero
//   prints as zero, values that are not finite as NaN, Infinity or -Infinity.
// - A page shorter than 6 lines is taken as 6. A point number beyond 9999 widens its field.
// - The summary file gets its data sets only when the host's report switch is 1 or 2, also when the table was
//   left out: NPOINT, PROPERTIES and TRAY_NO sets, and the blocks YCSD, XCSD and YCSDS. The host's summary
//   counters advance by five data sets and three list sets.
POLYPROPS_API void POLY_CSDPLOT(const void* context, const void* unused1, const void* unused2,
                                const void* unused3, const void* unused4, const void* unused5,
                                const void* unused6, const void* unused7, const void* unused8,
                                const void* unused9, const int64_t* n, const double* x, const double* y,
                                const int64_t* nc, const double* scale, const int64_t* scaled,
                                const int64_t* gpc);

// ---- reports ----

// Writes polymer results per catalyst site type to the host's summary file.
//
//   block POLYRES = R1(1..NS), each followed by a separator, then R2(1..NS) … R7(1..NS)
//
//   CONTEXT  in      the host's summary context, passed on to it
//   NS       in      number of catalyst site types
//   R1(NS)   in      first result of each site type [any]
//   R2(NS)   in      second result [any]
//   R3(NS)   in      third result [any]
//   R4(NS)   in      fourth result [any]
//   R5(NS)   in      fifth result [any]
//   R6(NS)   in      sixth result [any]
//   R7(NS)   in      seventh result [any]
//
// - Nothing is written unless the run has polymers (by the polymer count of the host) and the host's report
//   switch is 1 or 2.
// - The block is listed against the data set SITES, which is named, not numbered. The host's summary counters
//   advance by one list set.
// - NS < 1: the block holds no values.
POLYPROPS_API void POLY_WRTPOLSUM(const void* context, const int64_t* ns, const double* r1, const double* r2,
                                  const double* r3, const double* r4, const double* r5, const double* r6,
                                  const double* r7);

#ifdef __cplusplus
}
#endif
