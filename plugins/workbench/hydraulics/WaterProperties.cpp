#include "plugins/workbench/hydraulics/WaterProperties.h"

#include <cmath>

namespace hydraulics {
namespace {

constexpr double kZeroCelsius = 273.15; // K
constexpr double kPascalsInAMegapascal = 1e6;

// The terms of the dimensionless Gibbs energy of region 1: n (7.1 - pi)^i (tau - 1.222)^j.
struct GibbsTerm {
  int i;
  int j;
  double n;
};

constexpr GibbsTerm kGibbs[] = {
    {0, -2, 0.14632971213167},        {0, -1, -0.84548187169114},       {0, 0, -0.37563603672040e1},
    {0, 1, 0.33855169168385e1},       {0, 2, -0.95791963387872},        {0, 3, 0.15772038513228},
    {0, 4, -0.16616417199501e-1},     {0, 5, 0.81214629983568e-3},      {1, -9, 0.28319080123804e-3},
    {1, -7, -0.60706301565874e-3},    {1, -1, -0.18990068218419e-1},    {1, 0, -0.32529748770505e-1},
    {1, 1, -0.21841717175414e-1},     {1, 3, -0.52838357969930e-4},     {2, -3, -0.47184321073267e-3},
    {2, 0, -0.30001780793026e-3},     {2, 1, 0.47661393906987e-4},      {2, 3, -0.44141845330846e-5},
    {2, 17, -0.72694996297594e-15},   {3, -4, -0.31679644845054e-4},    {3, 0, -0.28270797985312e-5},
    {3, 6, -0.85205128120103e-9},     {4, -5, -0.22425281908000e-5},    {4, -2, -0.65171222895601e-6},
    {4, 10, -0.14341729937924e-12},   {5, -8, -0.40516996860117e-6},    {8, -11, -0.12734301741641e-8},
    {8, -6, -0.17424871230634e-9},    {21, -29, -0.68762131295531e-18}, {23, -31, 0.14478307828521e-19},
    {29, -38, 0.26335781662795e-22},  {30, -39, -0.11947622640071e-22}, {31, -40, 0.18228094581404e-23},
    {32, -41, -0.93537087292458e-25},
};
constexpr double kGibbsPressure = 16.53;   // MPa
constexpr double kGibbsTemperature = 1386; // K
constexpr double kGasConstant = 461.526;   // J/(kg K)

// The saturation line, region 4.
constexpr double kSaturation[] = {
    0.11670521452767e4, -0.72421316703206e6, -0.17073846940092e2, 0.12020824702470e5, -0.32325550322333e7,
    0.14915108613530e2, -0.48232657361591e4, 0.40511340542057e6,  -0.23855557567849,  0.65017534844798e3};

// The terms of the viscosity's part that depends on the density: h (1/T - 1)^i (rho - 1)^j.
struct ViscosityTerm {
  int i;
  int j;
  double h;
};

constexpr ViscosityTerm kViscosity[] = {
    {0, 0, 5.20094e-1},  {1, 0, 8.50895e-2},  {2, 0, -1.08374},    {3, 0, -2.89555e-1}, {0, 1, 2.22531e-1},
    {1, 1, 9.99115e-1},  {2, 1, 1.88797},     {3, 1, 1.26613},     {5, 1, 1.20573e-1},  {0, 2, -2.81378e-1},
    {1, 2, -9.06851e-1}, {2, 2, -7.72479e-1}, {3, 2, -4.89837e-1}, {4, 2, -2.57040e-1}, {0, 3, 1.61913e-1},
    {1, 3, 2.57399e-1},  {0, 4, -3.25372e-2}, {3, 4, 6.98452e-2},  {4, 5, 8.72102e-3},  {3, 6, -4.35673e-3},
    {5, 6, -5.93264e-4},
};
constexpr double kThinGasViscosity[] = {1.67752, 2.20462, 0.6366564, -0.241605};
constexpr double kCriticalTemperature = 647.096; // K
constexpr double kCriticalDensity = 322;         // kg/m3
constexpr double kViscosityUnit = 1e-6;          // Pa s

} // namespace

double DynamicViscosity(double celsius, double density) {
  const double temperature = (celsius + kZeroCelsius) / kCriticalTemperature;
  const double relativeDensity = density / kCriticalDensity;
  double thin = 0;
  for (int i = 0; i < 4; ++i) thin += kThinGasViscosity[i] / std::pow(temperature, i);
  double dense = 0;
  for (const auto& term : kViscosity)
    dense += term.h * std::pow(1 / temperature - 1, term.i) * std::pow(relativeDensity - 1, term.j);
  return 100 * std::sqrt(temperature) / thin * std::exp(relativeDensity * dense) * kViscosityUnit;
}

double BoilingPressure(double celsius) {
  const auto& n = kSaturation;
  const double kelvin = celsius + kZeroCelsius;
  const double theta = kelvin + n[8] / (kelvin - n[9]);
  const double a = theta * theta + n[0] * theta + n[1];
  const double b = n[2] * theta * theta + n[3] * theta + n[4];
  const double c = n[5] * theta * theta + n[6] * theta + n[7];
  return std::pow(2 * c / (-b + std::sqrt(b * b - 4 * a * c)), 4);
}

std::optional<Water> WaterAt(double celsius, double megapascals) {
  const bool isInRange = celsius >= kColdestWater && celsius <= kHottestWater && megapascals <= 100;
  if (!isInRange || !(megapascals > 0) || megapascals < BoilingPressure(celsius)) return std::nullopt;
  const double kelvin = celsius + kZeroCelsius;
  const double pi = megapascals / kGibbsPressure;
  const double tau = kGibbsTemperature / kelvin;
  const double x = 7.1 - pi;
  const double y = tau - 1.222;
  // First derivatives by pi and by tau, and the second by tau.
  double byPi = 0;
  double byTau = 0;
  double byTauTwice = 0;
  for (const auto& [i, j, n] : kGibbs) {
    if (i != 0) byPi -= n * i * std::pow(x, i - 1) * std::pow(y, j);
    byTau += n * std::pow(x, i) * j * std::pow(y, j - 1);
    byTauTwice += n * std::pow(x, i) * j * (j - 1) * std::pow(y, j - 2);
  }
  Water water;
  water.density = megapascals * kPascalsInAMegapascal / (kGasConstant * kelvin * pi * byPi);
  water.enthalpy = kGasConstant * kelvin * tau * byTau;
  water.heatCapacity = -kGasConstant * tau * tau * byTauTwice;
  water.dynamicViscosity = DynamicViscosity(celsius, water.density);
  return water;
}

} // namespace hydraulics
