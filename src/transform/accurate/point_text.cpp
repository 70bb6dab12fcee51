#include "transform/accurate/point_text.h"

#include <charconv>

namespace lapdesk {

std::string RoundTripText(double x) {
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, x);
    return std::string(buffer, result.ptr);
}

std::string PointText(const Complex& s) {
    const std::string im = RoundTripText(s.Im);
    return RoundTripText(s.Re) + (im.front() == '-' ? "" : "+") + im + "j";
}

std::string BandText(int band, double t0, double t1) {
    return "帯 " + std::to_string(band) + " (t = " + RoundTripText(t0) + "〜" + RoundTripText(t1) +
           ")";
}

}  // namespace lapdesk
