// Four numbers that are computed side by side, by instructions that every 64-bit processor of this
// kind has. They are added, multiplied and divided by the usual signs.
#pragma once

#include <emmintrin.h>

namespace varnel {

using Lanes = __m128;

inline Lanes AllOf(float number) {
  return _mm_set1_ps(number);
}
// `first`, and each one more than the one before.
inline Lanes CountFrom(float first) {
  return _mm_add_ps(AllOf(first), _mm_setr_ps(0, 1, 2, 3));
}

inline Lanes Least(Lanes one, Lanes other) {
  return _mm_min_ps(one, other);
}
inline Lanes Most(Lanes one, Lanes other) {
  return _mm_max_ps(one, other);
}
inline Lanes RootOf(Lanes numbers) {
  return _mm_sqrt_ps(numbers);
}
inline Lanes WithoutSign(Lanes numbers) {
  return _mm_andnot_ps(AllOf(-0.0F), numbers);
}
// `numbers`, which must not be negative, with the signs of `signs`.
inline Lanes WithSignOf(Lanes signs, Lanes numbers) {
  return _mm_or_ps(_mm_and_ps(AllOf(-0.0F), signs), numbers);
}
// Of each lane `one` where `number` is at most `limit`, else `other`.
inline Lanes WhereAtMost(Lanes number, Lanes limit, Lanes one, Lanes other) {
  const Lanes holds = _mm_cmple_ps(number, limit);
  return _mm_or_ps(_mm_and_ps(holds, one), _mm_andnot_ps(holds, other));
}

inline bool AnyAbove(Lanes numbers, float limit) {
  return _mm_movemask_ps(_mm_cmpgt_ps(numbers, AllOf(limit))) != 0;
}

// The whole numbers just below. Here and there for what an int can hold.
inline Lanes FloorOf(Lanes numbers) {
  const Lanes cut = _mm_cvtepi32_ps(_mm_cvttps_epi32(numbers));
  return cut - _mm_and_ps(_mm_cmpgt_ps(cut, numbers), AllOf(1));
}
// From and to `four`, which is a multiple of 16 bytes.
inline Lanes Load(const float* four) {
  return _mm_load_ps(four);
}
inline void Store(float* four, Lanes numbers) {
  _mm_store_ps(four, numbers);
}
// Stores whole numbers at `four`, which is a multiple of 16 bytes.
inline void StoreWhole(int* four, Lanes numbers) {
  _mm_store_si128(reinterpret_cast<__m128i*>(four), _mm_cvttps_epi32(numbers));
}

}  // namespace varnel
