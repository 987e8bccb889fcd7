#pragma once
// The result of testing one file: ten 32-bit floats, the test log's columns and the
// batch's figures. 400.0 and -1.0 mark what was not measured.

constexpr float kNotMeasured = 400.0f;
constexpr float kNotMeasuredPercent = -1.0f;

struct LevelResult {
  float GainLeft = kNotMeasured;
  float GainRight = kNotMeasured;
  float NoClippingLeft = kNotMeasured;
  float NoClippingRight = kNotMeasured;
  float WavLeft = kNotMeasuredPercent;
  float WavRight = kNotMeasuredPercent;
  float WavPikLeft = kNotMeasured;
  float WavPikRight = kNotMeasured;
  float WavPikNoClippingLeft = kNotMeasured;
  float WavPikNoClippingRight = kNotMeasured;

  bool operator==(const LevelResult&) const = default;
};
