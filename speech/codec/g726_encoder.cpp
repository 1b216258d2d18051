#include "speech/codec/g726_encoder.h"

#include "speech/codec/g726_tables.h"

#if KQ_G726_VECTOR
#include "speech/codec/g726_vector.h"
#endif

#include <algorithm>
#include <bit>
#include <cstdlib>

namespace kq::speech {

namespace {

using FloatParts = G726Encoder32::FloatParts;

using g726::kDqln;
using g726::kFi;
using g726::kQuantizer;
using g726::kWi;

// The number of the highest set bit plus one; 0 for 0 (the exponent of the floating forms).
constexpr int Exponent(int v) {
  return 32 - std::countl_zero(static_cast<uint32_t>(v));
}

// The coefficient side of FloatMultiply for every coefficient from -8192 to 8191: the
// exponent of its magnitude (low four bits), its mantissa (next six) and its sign (top).
struct CoefficientForms {
  uint16_t form[16384];
  constexpr CoefficientForms() : form() {
    for (int an = -8192; an < 8192; ++an) {
      const int anmag = an > 0 ? an : ((-an) & 0x1FFF);
      const int e = Exponent(anmag);
      const int anmant = anmag == 0 ? 32 : (anmag << 6) >> e;
      form[an + 8192] = static_cast<uint16_t>(e | (anmant << 4) | (an < 0 ? 0x8000 : 0));
    }
  }
};
constexpr CoefficientForms kCoefficients;

// A coefficient times a value in the 4-bit exponent, 6-bit mantissa form, the value
// taken apart beforehand; without branches: of the two shifts one is always zero.
inline int FloatMultiply(int an, const FloatParts& v) {
  const int c = kCoefficients.form[an + 8192];
  const int wanexp = (c & 15) + v.exp;
  const int wanmant = (((c >> 4) & 0x3F) * v.mant + 0x30) >> 4;
  const int r = ((wanmant << std::max(wanexp, 0)) >> std::max(-wanexp, 0)) & 0x7FFF;
  const int sign = -((c >> 15) ^ v.negative);  // -1: a negative product
  return (r ^ sign) - sign;
}

// The 4-bit exponent, 6-bit mantissa form of a magnitude.
inline int16_t ToFloat(int mag) {
  const int e = Exponent(mag);
  return static_cast<int16_t>((e << 6) + ((mag << 6) >> e));
}

// A value in the floating form taken apart for FloatMultiply.
inline FloatParts Parts(int16_t form) {
  return {((form >> 6) & 0xF) - 19, form & 0x3F, static_cast<uint16_t>(form) >> 15};
}

}  // namespace

[[gnu::always_inline]] inline int G726Encoder32::Code(int sl) {
  int sezi = 0;
  const FloatParts* past = history_ + at_;
  for (int i = 0; i < 6; ++i) sezi += FloatMultiply(b_[i] >> 2, past[i]);
  sezi = static_cast<int16_t>(sezi);
  const int sez = sezi >> 1;
  const int pole = FloatMultiply(a_[1] >> 2, sr_[1]) + FloatMultiply(a_[0] >> 2, sr_[0]);
  // The sums are 16-bit, as the reference coder keeps them, wrapping at the extremes.
  const int se = static_cast<int16_t>(sezi + pole) >> 1;
  const int d = static_cast<int16_t>(sl - se);

  // The step size: yu alone once adapted, else weighted towards yl.
  int y = yu_;
  if (ap_ < 256) {
    y = yl_ >> 6;
    const int dif = yu_ - y;
    const int al = ap_ >> 2;
    if (dif > 0) {
      y += (dif * al) >> 6;
    } else if (dif < 0) {
      y += (dif * al + 0x3F) >> 6;
    }
  }

  // Quantize the difference in the log domain.
  const auto dqm = static_cast<int16_t>(std::abs(d));
  const auto exp = static_cast<int16_t>(Exponent(dqm >> 1));
  const auto mant = static_cast<int16_t>(((dqm << 7) >> exp) & 0x7F);
  const auto dl = static_cast<int16_t>((exp << 7) + mant);
  const auto dln = static_cast<int16_t>(dl - (y >> 2));
  int q = 0;
  for (const int step : kQuantizer) q += dln >= step;
  const int code = d < 0 ? 15 - q : q == 0 ? 15 : q;

  // Reconstruct the quantized difference.
  int dq;
  const auto dql = static_cast<int16_t>(kDqln[code] + (y >> 2));
  if (dql < 0) {
    dq = (code & 8) ? -0x8000 : 0;
  } else {
    const auto dex = static_cast<int16_t>((dql >> 7) & 15);
    const auto dqt = static_cast<int16_t>(128 + (dql & 127));
    const auto mag = static_cast<int16_t>((dqt << 7) >> (14 - dex));
    dq = (code & 8) ? mag - 0x8000 : mag;
  }
  const int sr = static_cast<int16_t>(dq < 0 ? se - (dq & 0x3FFF) : se + dq);
  const int dqsez = static_cast<int16_t>(sr + sez - se);
  Update(y, kWi[code] << 5, kFi[code], dq, sr, dqsez);
  return code;
}

[[gnu::always_inline]] inline void G726Encoder32::Update(int y, int wi, int fi, int dq, int sr,
                                                         int dqsez) {
  const int16_t pk0 = dqsez < 0 ? 1 : 0;
  auto mag = static_cast<int16_t>(dq & 0x7FFF);

  // A tone is taken for data only when the difference is large.
  const auto ylint = static_cast<int16_t>(yl_ >> 15);
  const auto ylfrac = static_cast<int16_t>((yl_ >> 10) & 0x1F);
  const auto thr = static_cast<int16_t>(ylint > 9 ? 31 << 10 : (32 + ylfrac) << ylint);
  const auto dqthr = static_cast<int16_t>((thr + (thr >> 1)) >> 1);
  const bool tr = td_ && mag > dqthr;

  yu_ = static_cast<int16_t>(y + ((wi - y) >> 5));
  if (yu_ < 544) {
    yu_ = 544;
  } else if (yu_ > 5120) {
    yu_ = 5120;
  }
  yl_ += yu_ + ((-yl_) >> 6);

  int16_t a2p = 0;
  if (tr) {
    a_[0] = a_[1] = 0;
    for (int16_t& b : b_) b = 0;
  } else {
    const int16_t pks1 = pk0 ^ pk_[0];
    a2p = static_cast<int16_t>(a_[1] - (a_[1] >> 7));
    if (dqsez != 0) {
      const auto fa1 = static_cast<int16_t>(pks1 ? a_[0] : -a_[0]);
      if (fa1 < -8191) {
        a2p = static_cast<int16_t>(a2p - 0x100);
      } else if (fa1 > 8191) {
        a2p = static_cast<int16_t>(a2p + 0xFF);
      } else {
        a2p = static_cast<int16_t>(a2p + (fa1 >> 5));
      }
      if (pk0 ^ pk_[1]) {
        if (a2p <= -12160) {
          a2p = -12288;
        } else if (a2p >= 12416) {
          a2p = 12288;
        } else {
          a2p = static_cast<int16_t>(a2p - 0x80);
        }
      } else if (a2p <= -12416) {
        a2p = -12288;
      } else if (a2p >= 12160) {
        a2p = 12288;
      } else {
        a2p = static_cast<int16_t>(a2p + 0x80);
      }
    }
    a_[1] = a2p;
    a_[0] = static_cast<int16_t>(a_[0] - (a_[0] >> 8));
    if (dqsez != 0) a_[0] = static_cast<int16_t>(pks1 == 0 ? a_[0] + 192 : a_[0] - 192);
    const auto a1ul = static_cast<int16_t>(15360 - a2p);
    if (a_[0] < -a1ul) {
      a_[0] = static_cast<int16_t>(-a1ul);
    } else if (a_[0] > a1ul) {
      a_[0] = a1ul;
    }
    const FloatParts* past = history_ + at_;
    const int step = (dq & 0x7FFF) == 0 ? 0 : 128;
    const int negative = dq < 0 ? 1 : 0;
    for (int i = 0; i < 6; ++i) {
      const int same = past[i].negative == negative;
      b_[i] = static_cast<int16_t>(b_[i] - (b_[i] >> 8) + (same ? step : -step));
    }
  }

  // The newest quantized difference goes before the others, written twice so that the
  // last six always lie side by side.
  int16_t form;
  if (mag == 0) {
    form = static_cast<int16_t>(dq >= 0 ? 0x20 : 0xFC20);
  } else {
    form = static_cast<int16_t>(dq >= 0 ? ToFloat(mag) : ToFloat(mag) - 0x400);
  }
  at_ = at_ == 0 ? 5 : at_ - 1;
  history_[at_] = history_[at_ + 6] = Parts(form);
  sr_[1] = sr_[0];
  if (sr == 0) {
    form = 0x20;
  } else if (sr > 0) {
    form = ToFloat(sr);
  } else if (sr > -32768) {
    form = static_cast<int16_t>(ToFloat(-sr) - 0x400);
  } else {
    form = static_cast<int16_t>(0xFC20);
  }
  sr_[0] = Parts(form);
  pk_[1] = pk_[0];
  pk_[0] = pk0;

  td_ = !tr && a2p < -11776;
  dms_ = static_cast<int16_t>(dms_ + ((fi - dms_) >> 5));
  dml_ = static_cast<int16_t>(dml_ + (((fi << 2) - dml_) >> 7));
  if (tr) {
    ap_ = 256;
  } else if (y < 1536 || td_ || std::abs((dms_ << 2) - dml_) >= (dml_ >> 3)) {
    ap_ = static_cast<int16_t>(ap_ + ((0x200 - ap_) >> 4));
  } else {
    ap_ = static_cast<int16_t>(ap_ + ((-ap_) >> 4));
  }
}

bool G726Encoder32::HasVectorCoder() {
#if KQ_G726_VECTOR
  static const bool has = [] {
    __builtin_cpu_init();  // in case this runs before the processor's features are known
    return __builtin_cpu_supports("avx2") != 0;
  }();
  return has;
#else
  return false;
#endif
}

G726Encoder32::G726Encoder32(bool portable) {
#if KQ_G726_VECTOR
  if (!portable && HasVectorCoder()) vector_ = g726_vector::NewState();
#else
  (void)portable;
#endif
}

G726Encoder32::~G726Encoder32() {
#if KQ_G726_VECTOR
  if (vector_ != nullptr) g726_vector::DeleteState(vector_);
#endif
}

void G726Encoder32::Encode(const int16_t* samples, size_t n, uint8_t* out) {
#if KQ_G726_VECTOR
  if (vector_ != nullptr) {
    g726_vector::Encode(vector_, samples, n, out);
    return;
  }
#endif
  for (size_t i = 0; i + 1 < n; i += 2) {
    const int low = Code(samples[i] >> 2);
    const int high = Code(samples[i + 1] >> 2);
    *out++ = static_cast<uint8_t>(low | (high << 4));
  }
}

}  // namespace kq::speech
