// What the tests of this folder share: ports to begin with, and pixels read one at a time, slowly.
#pragma once
#include "pixels/PixView.h"
#include "pixels/PixelFormat.h"
#include "pixels/Port.h"

#include <gtest/gtest.h>
#include <random>

inline std::unique_ptr<Port> WhitePort(std::uint32_t format, int width, int height,
                                       const ColorTable* table = nullptr)
{
    std::unique_ptr<Port> port;
    EXPECT_EQ(NewPort(format, width, height, table, &port), kQvxOK);
    return port;
}

// Every byte of every row at random, the padding too.
inline std::unique_ptr<Port> NoisePort(std::uint32_t format, int width, int height)
{
    auto port = WhitePort(format, width, height);
    std::minstd_rand random(static_cast<unsigned>(width * 31 + height));
    for (std::ptrdiff_t i = 0; i < std::ptrdiff_t{port->rowBytes} * height; ++i)
        port->baseAddr[i] = static_cast<std::uint8_t>(random() >> 8);
    return port;
}

// The bits of one pixel as a number, bit by bit; v and h in the map's own coordinates.
inline std::uint32_t BitsAt(const PixMap& map, int v, int h)
{
    const std::uint8_t* row = RowAddress(map, v);
    std::uint32_t bits = 0;
    for (int i = 0; i < map.pixelSize; ++i) {
        const int bit = (h - map.bounds.left) * map.pixelSize + i;
        bits = bits << 1 | (row[bit / 8] >> (7 - bit % 8) & 1u);
    }
    return bits;
}

inline Rect RectOf(int top, int left, int bottom, int right)
{
    return {static_cast<std::int16_t>(top), static_cast<std::int16_t>(left),
            static_cast<std::int16_t>(bottom), static_cast<std::int16_t>(right)};
}
