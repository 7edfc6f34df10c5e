#pragma once

#include <QtTypes>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <cstring>

#if defined(__SSE2__) || defined(_M_X64)
#define TESSARINE_SSE2_LANES
#include <emmintrin.h>
#endif

// The only file with processor intrinsics. Both classes have a portable form with the same results.

// The states of eight recursive filters, each a channel value in fixed point with 4 fractional bits.
class BlurLanes {
public:
    static BlurLanes fromChannels(const uchar* eight);
    // Two pixels, which need not be neighbours.
    static BlurLanes fromPixels(const uchar* first, const uchar* second);
    static BlurLanes fromStates(const quint16* states);

    // Moves the states toward the values by alpha / 16 of the distance, truncated toward zero.
    void feed(const BlurLanes& values, quint16 alpha);
    void storeStates(quint16* states) const;
    void storeChannels(uchar* eight) const;
    void storePixels(uchar* first, uchar* second) const;

private:
#ifdef TESSARINE_SSE2_LANES
    explicit BlurLanes(__m128i states) : _states(states) {}
    __m128i _states;
#else
    std::array<quint16, 8> _states;
#endif
};

// The weights of two taps, alternating as in a register.
struct alignas(16) WeightPair {
    std::array<qint16, 8> weights{};
};

// The weighted sums of 16 channels in a row, signed 32 bits each.
class TapSums {
public:
    TapSums();
    // Adds first * weight 0 + second * weight 1 for 16 channels from each address.
    void addTaps(const uchar* first, const uchar* second, const WeightPair& pair);
    // this = this * 65536 + low.
    void raiseAndAdd(const TapSums& low);
    // Sums / 65536, rounded down and clamped to 0 to 255.
    void storeClamped(uchar* sixteen) const;

private:
#ifdef TESSARINE_SSE2_LANES
    // Not a std::array: registers lose their alignment attribute as template arguments.
    __m128i _sums[4];
#else
    std::array<quint32, 16> _sums{};
#endif
};

#ifdef TESSARINE_SSE2_LANES

inline BlurLanes BlurLanes::fromChannels(const uchar* eight) {
    const __m128i bytes = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(eight));
    return BlurLanes(_mm_slli_epi16(_mm_unpacklo_epi8(bytes, _mm_setzero_si128()), 4));
}

inline BlurLanes BlurLanes::fromPixels(const uchar* first, const uchar* second) {
    // Copied, as reading bytes through a pointer to int is undefined; it becomes a plain load.
    int a;
    int b;
    std::memcpy(&a, first, sizeof a);
    std::memcpy(&b, second, sizeof b);
    const __m128i bytes = _mm_unpacklo_epi32(_mm_cvtsi32_si128(a), _mm_cvtsi32_si128(b));
    return BlurLanes(_mm_slli_epi16(_mm_unpacklo_epi8(bytes, _mm_setzero_si128()), 4));
}

inline BlurLanes BlurLanes::fromStates(const quint16* states) {
    return BlurLanes(_mm_loadu_si128(reinterpret_cast<const __m128i*>(states)));
}

inline void BlurLanes::feed(const BlurLanes& values, quint16 alpha) {
    const __m128i distance = _mm_sub_epi16(values._states, _states);
    const __m128i sign = _mm_srai_epi16(distance, 15);
    const __m128i size = _mm_sub_epi16(_mm_xor_si128(distance, sign), sign);
    // At most 4080 * 16, which fits 16 bits without a sign.
    const __m128i step = _mm_srli_epi16(_mm_mullo_epi16(size, _mm_set1_epi16(static_cast<qint16>(alpha))), 4);
    _states = _mm_add_epi16(_states, _mm_sub_epi16(_mm_xor_si128(step, sign), sign));
}

inline void BlurLanes::storeStates(quint16* states) const {
    _mm_storeu_si128(reinterpret_cast<__m128i*>(states), _states);
}

inline void BlurLanes::storeChannels(uchar* eight) const {
    const __m128i words = _mm_srli_epi16(_states, 4);
    _mm_storel_epi64(reinterpret_cast<__m128i*>(eight), _mm_packus_epi16(words, words));
}

inline void BlurLanes::storePixels(uchar* first, uchar* second) const {
    const __m128i words = _mm_srli_epi16(_states, 4);
    const __m128i bytes = _mm_packus_epi16(words, words);
    const int a = _mm_cvtsi128_si32(bytes);
    const int b = _mm_cvtsi128_si32(_mm_srli_si128(bytes, 4));
    std::memcpy(first, &a, sizeof a);
    std::memcpy(second, &b, sizeof b);
}

inline TapSums::TapSums() {
    std::fill_n(_sums, 4, _mm_setzero_si128());
}

inline void TapSums::addTaps(const uchar* first, const uchar* second, const WeightPair& pair) {
    const __m128i zero = _mm_setzero_si128();
    const __m128i weights = _mm_load_si128(reinterpret_cast<const __m128i*>(pair.weights.data()));
    const __m128i a = _mm_loadu_si128(reinterpret_cast<const __m128i*>(first));
    const __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i*>(second));
    // Interleaved, as madd multiplies neighbours and adds their products.
    const __m128i low = _mm_unpacklo_epi8(a, b);
    const __m128i high = _mm_unpackhi_epi8(a, b);
    _sums[0] = _mm_add_epi32(_sums[0], _mm_madd_epi16(_mm_unpacklo_epi8(low, zero), weights));
    _sums[1] = _mm_add_epi32(_sums[1], _mm_madd_epi16(_mm_unpackhi_epi8(low, zero), weights));
    _sums[2] = _mm_add_epi32(_sums[2], _mm_madd_epi16(_mm_unpacklo_epi8(high, zero), weights));
    _sums[3] = _mm_add_epi32(_sums[3], _mm_madd_epi16(_mm_unpackhi_epi8(high, zero), weights));
}

inline void TapSums::raiseAndAdd(const TapSums& low) {
    for (int i = 0; i < 4; ++i)
        _sums[i] = _mm_add_epi32(_mm_slli_epi32(_sums[i], 16), low._sums[i]);
}

inline void TapSums::storeClamped(uchar* sixteen) const {
    // Packing saturates twice, to 16 bits with a sign and then to 0 to 255.
    const __m128i low = _mm_packs_epi32(_mm_srai_epi32(_sums[0], 16), _mm_srai_epi32(_sums[1], 16));
    const __m128i high = _mm_packs_epi32(_mm_srai_epi32(_sums[2], 16), _mm_srai_epi32(_sums[3], 16));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(sixteen), _mm_packus_epi16(low, high));
}

#else

inline BlurLanes BlurLanes::fromChannels(const uchar* eight) {
    return fromPixels(eight, eight + 4);
}

inline BlurLanes BlurLanes::fromPixels(const uchar* first, const uchar* second) {
    BlurLanes lanes;
    for (size_t i = 0; i < 8; ++i)
        lanes._states[i] = static_cast<quint16>((i < 4 ? first[i] : second[i - 4]) * 16);
    return lanes;
}

inline BlurLanes BlurLanes::fromStates(const quint16* states) {
    BlurLanes lanes;
    std::copy_n(states, 8, lanes._states.begin());
    return lanes;
}

inline void BlurLanes::feed(const BlurLanes& values, quint16 alpha) {
    for (size_t i = 0; i < 8; ++i)
        _states[i] = static_cast<quint16>(_states[i] + (values._states[i] - _states[i]) * alpha / 16);
}

inline void BlurLanes::storeStates(quint16* states) const {
    std::copy(_states.begin(), _states.end(), states);
}

inline void BlurLanes::storeChannels(uchar* eight) const {
    storePixels(eight, eight + 4);
}

inline void BlurLanes::storePixels(uchar* first, uchar* second) const {
    for (size_t i = 0; i < 8; ++i)
        (i < 4 ? first[i] : second[i - 4]) = static_cast<uchar>(_states[i] >> 4);
}

inline TapSums::TapSums() = default;

inline void TapSums::addTaps(const uchar* first, const uchar* second, const WeightPair& pair) {
    for (size_t i = 0; i < _sums.size(); ++i)
        _sums[i] += static_cast<quint32>(first[i] * pair.weights[0] + second[i] * pair.weights[1]);
}

inline void TapSums::raiseAndAdd(const TapSums& low) {
    for (size_t i = 0; i < _sums.size(); ++i)
        _sums[i] = (_sums[i] << 16) + low._sums[i];
}

inline void TapSums::storeClamped(uchar* sixteen) const {
    for (size_t i = 0; i < _sums.size(); ++i)
        sixteen[i] = static_cast<uchar>(std::clamp(static_cast<qint32>(_sums[i]) >> 16, 0, 255));
}

#endif
