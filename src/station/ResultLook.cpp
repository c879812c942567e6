#include "station/ResultLook.h"

namespace {

using Kind = StationAnswer::Kind;

constexpr int low = 220;
constexpr int middle = 660;
constexpr int high = 990;

}  // namespace

const ResultLook& lookOf(Kind kind) {
  // Success rises or falls, what needs no action is short, what does is low and long.
  static const ResultLook signedIn{
      QColor(0x1b, 0x7f, 0x3b), QColor(0x6f, 0xdc, 0x8c), {{middle, 90}, {high, 160}}};
  static const ResultLook signedOut{
      QColor(0x1a, 0x5f, 0xb4), QColor(0x78, 0xb7, 0xff), {{high, 90}, {middle, 160}}};
  static const ResultLook alreadyOut{QColor(0x4a, 0x55, 0x68), QColor(0xb8, 0xc2, 0xd0), {{middle, 120}}};
  static const ResultLook repeated{
      QColor(0xa8, 0x52, 0x00), QColor(0xff, 0xb8, 0x66), {{middle, 70}, {0, 60}, {middle, 70}}};
  static const ResultLook unknown{QColor(0xb3, 0x26, 0x1e), QColor(0xff, 0x8a, 0x80), {{low, 500}}};
  static const ResultLook failed{QColor(0x7a, 0x1f, 0x6c),
                                 QColor(0xf0, 0x9a, 0xe3),
                                 {{low, 150}, {0, 70}, {low, 150}, {0, 70}, {low, 150}}};
  static const ResultLook busy{
      QColor(0x6b, 0x4e, 0x16), QColor(0xe6, 0xc8, 0x7a), {{low, 120}, {middle, 120}, {low, 120}}};
  switch (kind) {
    case Kind::SignedIn:
      return signedIn;
    case Kind::SignedOut:
      return signedOut;
    case Kind::AlreadySignedOut:
      return alreadyOut;
    case Kind::RepeatedScan:
      return repeated;
    case Kind::UnknownCard:
      return unknown;
    case Kind::Busy:
      return busy;
    case Kind::Failed:
      break;
  }
  return failed;
}
