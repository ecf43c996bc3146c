// Angles, degree-minute-second packing, chainage texts and snapping.
#include <cmath>
#include <cstdlib>

#include "mapcfg/utils.h"

namespace mapcfg {

namespace {

// The radian period written to files by older versions: 2 pi cut short.
constexpr double kRadianPeriod = 6.283185307;

// Runs `while (cond(v)) v += step;` where every cond(v) is a threshold test
// whose threshold lies within one period of 0, and `step` moves v towards
// that threshold. The result is that of the plain loop, rounding at every
// addition included, but the work is bounded:
//
// - While |v| >= 4 |step| each addition moves v by a fixed amount for as long
//   as v and its successor stay in the binade [2^e, 2^(e+1)) of v: on the
//   grid of multiples of ulp(v) the rounding of v + step depends only on
//   where step falls between two grid points (and, on an exact tie, on the
//   parity of v, which the first rounding makes even). So two equal
//   successive moves d prove that v + k*d is the result after k additions,
//   and that sum is exact. The jump stops two moves short of the binade's
//   edge; the few additions near the edge run one by one.
// - Where v + step == v the plain loop would never end: v is replaced by its
//   exact remainder std::fmod(v, step), and the loop goes on from there. An
//   infinity becomes NaN that way, which ends the loop.
template <typename Cond>
double AddWhile(double v, double step, Cond cond) {
  const double near = 4 * std::fabs(step);
  while (cond(v)) {
    const double next = v + step;
    if (next == v) {
      v = std::fmod(v, step) + 0.0;  // + 0.0 turns -0 into 0
      continue;
    }
    if (std::fabs(v) >= near) {
      const double d = next - v;  // exact: v and next are within a factor 2
      if (next + step - next == d) {
        const double edge = std::ldexp(1.0, std::ilogb(v));
        const double room = std::floor((std::fabs(v) - edge) / std::fabs(d)) - 2;
        if (room > 1) {
          v += room * d;
          continue;
        }
      }
    }
    v = next;
  }
  return v;
}

double Angle360(double v, double period) {
  v = AddWhile(v, period, [](double x) { return x < 0; });
  return AddWhile(v, -period, [period](double x) { return x >= period; });
}

// Degrees-minutes-seconds in pieces: the absolute value, nudged up by the
// tolerance, split into whole units, then `base` parts of them twice, and
// what is left below the last whole part.
struct DmsParts {
  double sign, d, m, s, f;
};

DmsParts SplitDms(double value, double base) {
  DmsParts p;
  p.sign = value < 0 ? -1.0 : 1.0;
  const double x = std::fabs(value) + kDblTolerance;
  p.d = std::trunc(x);
  double r = (x - p.d) * base;
  p.m = std::trunc(r);
  r = (r - p.m) * base;
  p.s = std::trunc(r);
  p.f = r - p.s;
  return p;
}

// Puts a "0" in front of a one-character `part`.
void PadOne(String& text, size_t part) {
  if (part == 1) text.insert(text.begin(), '0');
}

}  // namespace

double sDMSToDegree(double dms) {
  const DmsParts p = SplitDms(dms, 100.0);
  return p.sign * (p.d + p.m / 60 + p.s / 3600 + p.f * 0.0001 - kDblTolerance);
}

double sDegreeToDMS(double degree) {
  const DmsParts p = SplitDms(degree, 60.0);
  return p.sign * (p.d + p.m * 0.01 + p.s * 0.0001 + p.f / 3600 - kDblTolerance);
}

double sGetStdAngle360(double degree) { return Angle360(degree, 360.0); }

double sGetStdAngle180(double degree) {
  const double v = AddWhile(degree, -360.0, [](double x) { return x > 180; });
  return AddWhile(v, 360.0, [](double x) { return x <= -180; });
}

double sGetStdRadianPI2(double radian) { return Angle360(radian, kRadianPeriod); }

void sGetKMHighLow2Str(int value, String& high, String& low) {
  const double v = value * 1e-5;
  const double whole = std::trunc(v);
  high = sToString(static_cast<int>(whole));
  if (high == "0")
    high = "  ";
  else
    PadOne(high, high.size());
  low = sToStdNumStr((v - whole) * 100.0, 3, 1, 0);
  PadOne(low, low.find('.') == String::npos ? low.size() : low.find('.'));
}

void sToHVPoint(CDblPoint& reference, CDblPoint& point) {
  const double dx = std::fabs(point.x - reference.x);
  const double dy = std::fabs(point.y - reference.y);
  if (dy <= dx)
    point.y = reference.y;
  else
    point.x = reference.x;
}

void sToHVPoint(CPoint& reference, CPoint& point) {
  const int64_t dx = std::llabs(int64_t{point.x} - reference.x);
  const int64_t dy = std::llabs(int64_t{point.y} - reference.y);
  if (dy <= dx)
    point.y = reference.y;
  else
    point.x = reference.x;
}

}  // namespace mapcfg
