// The vector G.726 32 encoder. Two things make it fast, and neither changes a bit:
//
// - The predictor's eight products (six zeros, two poles) are taken at once, one per lane.
//   The coefficient's and the value's 4-bit exponent, 6-bit mantissa forms come from the
//   bits of a float, and the product's shift is a multiplication by a power of two in
//   float, exact for these small integers.
// - The coder is a chain: each sample's estimate needs the last sample's codeword. So
//   everything that depends only on the state before a sample is prepared while the
//   estimate is still being summed: the least difference of each quantizer interval, the
//   reconstructed magnitude of each interval, the pole coefficients for each sign of the
//   partial reconstruction and the zero coefficients for each sign of the difference. Once
//   the sample's interval is known, the state after it is picked, not computed.
//
// This file is built with AVX2 and must only run where the processor has it, and it shares
// no inline code with the files built for every processor: its helpers are its own.
#include "speech/codec/g726_vector.h"

#include "speech/codec/g726_tables.h"

#include <immintrin.h>

#include <cstdlib>

namespace kq::speech::g726_vector {

namespace {

using Lanes = int32_t __attribute__((vector_size(32)));
using Floats = float __attribute__((vector_size(32)));

// Numbers in the floating form, taken apart: exponent, mantissa and sign (-1 negative).
struct Forms {
  Lanes exp;
  Lanes mant;
  Lanes neg;
};

// By quantizer interval (the codeword's magnitude bits; 0 is codeword 15): the lower
// edges of the intervals of the normalised log difference (the last lane unused) and the
// log of each interval's reconstructed magnitude. The weights are g726::kWi and kFi.
constexpr Lanes kEdges =
    Lanes{g726::kQuantizer[0], g726::kQuantizer[1], g726::kQuantizer[2], g726::kQuantizer[3],
          g726::kQuantizer[4], g726::kQuantizer[5], g726::kQuantizer[6], g726::kQuantizer[6]};
constexpr Lanes kDqln = Lanes{g726::kDqln[0], g726::kDqln[1], g726::kDqln[2], g726::kDqln[3],
                              g726::kDqln[4], g726::kDqln[5], g726::kDqln[6], g726::kDqln[7]};
using g726::kFi;
using g726::kWi;

inline int Exponent(int v) {
  return v == 0 ? 0 : 32 - __builtin_clz(static_cast<unsigned>(v));
}
inline int Clamp(int v, int lo, int hi) {
  return v < lo ? lo : v > hi ? hi : v;
}
inline int Wrap16(int v) {
  return static_cast<int16_t>(v);
}
inline Lanes Wrap16(Lanes v) {
  return (v << 16) >> 16;
}
inline __m256i Raw(Lanes v) {
  return reinterpret_cast<__m256i>(v);
}
inline Lanes Clamp(Lanes v, Lanes lo, Lanes hi) {
  return reinterpret_cast<Lanes>(_mm256_min_epi32(_mm256_max_epi32(Raw(v), Raw(lo)), Raw(hi)));
}
inline Lanes Every(int v) {
  return Lanes{} + v;
}
inline Lanes Select(Lanes mask, Lanes a, Lanes b) {
  return (a & mask) | (b & ~mask);
}
inline Forms Select(Lanes mask, const Forms& a, const Forms& b) {
  return {Select(mask, a.exp, b.exp), Select(mask, a.mant, b.mant), Select(mask, a.neg, b.neg)};
}
// Lane i of the result is lane at[i] of v.
inline Lanes Pick(Lanes v, Lanes at) {
  return reinterpret_cast<Lanes>(_mm256_permutevar8x32_epi32(Raw(v), Raw(at)));
}
inline Forms Pick(const Forms& f, Lanes at) {
  return {Pick(f.exp, at), Pick(f.mant, at), Pick(f.neg, at)};
}
// A history with `dq` in front of the last six differences and `sr` before the last
// reconstruction.
inline Lanes Pushed(Lanes history, int dq, int sr) {
  const Lanes moved = Pick(history, Lanes{0, 0, 1, 2, 3, 4, 6, 6});
  return reinterpret_cast<Lanes>(
      _mm256_blend_epi32(Raw(moved), Raw(Lanes{dq, 0, 0, 0, 0, 0, sr, 0}), 0x41));
}

// The forms of coefficients (taken >> 2, their magnitude in 13 bits): exponent, mantissa.
inline Forms CoefficientForms(Lanes coefficients) {
  const Lanes an = coefficients >> 2;
  const Lanes neg = an >> 31;
  const Lanes mag = ((an ^ neg) - neg) & 0x1FFF;
  const Lanes bits = reinterpret_cast<Lanes>(__builtin_convertvector(mag, Floats));
  return {((bits >> 23) - 126) & (mag != 0), ((bits >> 18) & 0x1F) | 0x20, neg};
}

// The forms of magnitudes below 32768 with their signs: exponent less 19, mantissa; zero
// has the mantissa 32.
inline Forms ValueForms(Lanes mag, Lanes neg) {
  const Lanes bits = reinterpret_cast<Lanes>(__builtin_convertvector(mag, Floats));
  return {(((bits >> 23) - 126) & (mag != 0)) - 19, ((bits >> 18) & 0x1F) | 0x20, neg};
}

// Coefficient times value in the floating forms, lane by lane.
inline Lanes Product(const Forms& c, const Forms& v) {
  const Lanes scale = (c.exp + v.exp + 127) << 23;  // 2 to the product's exponent
  const Lanes mant = (c.mant * v.mant + 0x30) >> 4;
  const Floats shifted = __builtin_convertvector(mant, Floats) * reinterpret_cast<Floats>(scale);
  const Lanes r = __builtin_convertvector(shifted, Lanes) & 0x7FFF;
  const Lanes sign = c.neg ^ v.neg;
  return (r ^ sign) - sign;
}

}  // namespace

struct State {
  Lanes b = {};                                      // the zero coefficients, lanes 0 to 5
  Forms coefficients = CoefficientForms(Lanes{});    // b, then a1 and a2 in lanes 6 and 7
  Forms history = {Every(-19), Every(32), Lanes{}};  // dq, newest first; sr, sr of before
  int a1 = 0;
  int a2 = 0;
  int yl = 34816;  // locked step size multiplier
  int yu = 544;    // unlocked step size multiplier
  int dms = 0;     // short term energy
  int dml = 0;     // long term energy
  int ap = 0;      // weighting of yl and yu
  int pk1 = 0;     // the signs of the last two partial reconstructions
  int pk2 = 0;
  bool td = false;  // tone detected
};

State* NewState() {
  return new State;
}

void DeleteState(State* state) {
  delete state;
}

namespace {

[[gnu::always_inline]] inline int Code(State& s, int sl) {
  // The estimate, from the products of all eight lanes.
  const Lanes p = Product(s.coefficients, s.history);
  const int sezi = Wrap16(p[0] + p[1] + p[2] + p[3] + p[4] + p[5]);
  const int se = Wrap16(sezi + p[6] + p[7]) >> 1;
  const int sez = sezi >> 1;

  // The step size: yu alone once adapted, else weighted towards yl.
  const int yls = s.yl >> 6;
  const int dif = s.yu - yls;
  const int weighted = yls + ((dif * (s.ap >> 2) + ((dif >> 31) & 0x3F)) >> 6);
  const int y = s.yu + ((weighted - s.yu) & ((s.ap - 256) >> 31));
  const int y2 = y >> 2;
  // The least magnitude of the difference in each interval: the log form's edge turned back.
  const Lanes edge = kEdges + y2;
  const Lanes least = Select(edge > 0, (((128 + (edge & 127)) << (edge >> 7)) + 127) >> 7, Lanes{});
  // The reconstructed magnitude of each interval and its form.
  const Lanes dql = kDqln + y2;
  const Lanes power = ((dql >> 7) & 15) + 120;  // 2 to the power (dql >> 7) - 7
  const Floats magnitude =
      __builtin_convertvector(128 + (dql & 127), Floats) * reinterpret_cast<Floats>(power << 23);
  const Lanes mags = __builtin_convertvector(magnitude, Lanes) & (dql >= 0);
  const Forms dqForms = ValueForms(mags, Lanes{});

  // The pole coefficients after the sample for a partial reconstruction that is negative
  // (lanes 0 and 4), zero (1 and 5) or positive (2 and 6).
  const Lanes pk = {1, 0, 0, 0, 1, 0, 0, 0};
  const Lanes moved = {-1, 0, -1, 0, -1, 0, -1, 0};
  const Lanes pks1 = pk ^ s.pk1;
  const int a2p = Wrap16(s.a2 - (s.a2 >> 7));
  const Lanes fa1 = Wrap16(Select(pks1 != 0, Every(s.a1), Every(-s.a1)));
  const Lanes a2q = Wrap16(a2p + Clamp(fa1 >> 5, Every(-0x100), Every(0xFF)));
  const Lanes a2n = Clamp(a2q + (128 - 256 * (pk ^ s.pk2)), Every(-12288), Every(12288));
  const Lanes a2 = Select(moved, a2n, Every(a2p));
  const Lanes a1ul = 15360 - a2;
  const Lanes a1 = Clamp(Wrap16(s.a1 - (s.a1 >> 8) + ((192 - 384 * pks1) & moved)), -a1ul, a1ul);
  const Forms poles =
      CoefficientForms(reinterpret_cast<Lanes>(_mm256_permute2x128_si256(Raw(a1), Raw(a2), 0x20)));
  // The zero coefficients after the sample, unchanged but for leakage when the
  // reconstructed difference is zero.
  const Lanes leaked = s.b - (s.b >> 8);
  const Forms leakedForms = CoefficientForms(leaked);
  // The threshold of the tone's transition.
  const int ylint = s.yl >> 15;
  const int ylfrac = (s.yl >> 10) & 0x1F;
  const int big = (9 - ylint) >> 31;
  const int thr = (((32 + ylfrac) << ylint) & ~big) | ((31 << 10) & big);
  const int dqthr = Wrap16((thr + (thr >> 1)) >> 1);

  // The difference, its interval, and the zero coefficients for its sign.
  const int d = Wrap16(sl - se);
  const int sign = d >> 31;
  const int dqm = Wrap16(std::abs(d));
  int q = 0;
  for (int k = 0; k < 7; ++k) q += dqm >= least[k];
  const Lanes differ = s.history.neg ^ sign;
  const Lanes stepped = Wrap16(leaked + ((128 ^ differ) - differ));
  const Forms steppedForms = CoefficientForms(stepped);

  // The state after the sample, picked.
  const int mag = mags[q];
  const int dq = (mag ^ sign) - sign;
  const int dqsez = Wrap16(sez + dq);
  const int sr = Wrap16(se + dq);
  const int kind = (dqsez >= 0) + (dqsez > 0);
  const bool tr = s.td && mag > dqthr;
  s.a1 = a1[kind];
  s.a2 = a2[kind];
  const Lanes leak = Every(-(q == 0));
  s.b = Select(leak, leaked, stepped);
  const Lanes polesAt = {0, 0, 0, 0, 0, 0, kind, kind + 4};
  const Lanes poleLanes = {0, 0, 0, 0, 0, 0, -1, -1};
  s.coefficients = Select(poleLanes, Pick(poles, polesAt), Select(leak, leakedForms, steppedForms));
  // The newest difference and reconstruction go in front of their histories.
  const int srm = (sr < 0 ? -sr : sr) & 0x7FFF;
  const int sre = Exponent(srm);
  const int srmant = ((srm << 6) >> sre) + ((srm == 0) << 5);
  Forms& h = s.history;
  h.exp = Pushed(h.exp, dqForms.exp[q], sre - 19);
  h.mant = Pushed(h.mant, dqForms.mant[q], srmant);
  h.neg = Pushed(h.neg, sign | -(q == 0), -(sr < 0));
  s.pk2 = s.pk1;
  s.pk1 = dqsez < 0;

  // The step sizes and the speed control.
  s.yu = Clamp(Wrap16(y + (((kWi[q] << 5) - y) >> 5)), 544, 5120);
  s.yl += s.yu + ((-s.yl) >> 6);
  s.td = s.a2 < -11776;
  const int fi = kFi[q];
  s.dms += (fi - s.dms) >> 5;
  s.dml += ((fi << 2) - s.dml) >> 7;
  const bool fast = (y < 1536) | s.td | (std::abs((s.dms << 2) - s.dml) >= (s.dml >> 3));
  s.ap += ((fast ? 0x200 : 0) - s.ap) >> 4;
  if (tr) [[unlikely]] {  // a transition from a tone resets the predictor
    s.a1 = s.a2 = 0;
    s.b = Lanes{};
    s.coefficients = CoefficientForms(Lanes{});
    s.td = false;
    s.ap = 256;
  }
  const int code = q ^ (sign & 15);         // a negative difference has the interval's complement
  return code | (((code - 1) >> 31) & 15);  // and the least positive interval codeword 15
}

}  // namespace

void Encode(State* state, const int16_t* samples, size_t n, uint8_t* out) {
  State s = *state;  // in registers while the block lasts
  for (size_t i = 0; i + 1 < n; i += 2) {
    const int low = Code(s, samples[i] >> 2);
    const int high = Code(s, samples[i + 1] >> 2);
    *out++ = static_cast<uint8_t>(low | (high << 4));
  }
  *state = s;
}

}  // namespace kq::speech::g726_vector
