#include "Qvx2Parser/QvxDecimal.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace {

std::string_view WithoutLead(std::string_view text)
{
    const std::size_t start = text.find_first_not_of(" \t\r\n");
    text.remove_prefix(start == std::string_view::npos ? text.size() : start);
    if (text.starts_with('+'))
        text.remove_prefix(1);
    return text;
}

}  // namespace

double QvxDecimalToDouble(std::string_view text)
{
    text = WithoutLead(text);
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::invalid_argument)
        return 0;
    if (error != std::errc::result_out_of_range)
        return value;
    const std::string_view read(text.data(), static_cast<std::size_t>(end - text.data()));
    const std::size_t exponent = read.find_first_of("eE");
    const bool tiny =
        exponent != std::string_view::npos && read.substr(exponent + 1).starts_with('-');
    const double size = tiny ? 0.0 : std::numeric_limits<double>::infinity();
    return text.starts_with('-') ? -size : size;
}

float QvxDecimalToFloat(std::string_view text)
{
    const double value = QvxDecimalToDouble(text);
    constexpr double kLargest = std::numeric_limits<float>::max();
    if (std::abs(value) > kLargest)
        return std::copysign(std::numeric_limits<float>::infinity(),
                             static_cast<float>(value > 0 ? 1 : -1));
    return static_cast<float>(value);
}

std::int32_t QvxDecimalToInt(std::string_view text)
{
    text = WithoutLead(text);
    std::int32_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::result_out_of_range)
        return text.starts_with('-') ? std::numeric_limits<std::int32_t>::min()
                                     : std::numeric_limits<std::int32_t>::max();
    return error == std::errc() ? value : 0;
}
