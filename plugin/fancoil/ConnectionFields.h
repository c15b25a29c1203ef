// What the items of PipeConnection and DuctConnection hold behind their ids: each attribute with its field,
// in the order of the file. Only x and y of the points are stored.
#pragma once

#include <variant>

#include "plugin/fancoil/SKTFCUDuctData.h"
#include "plugin/fancoil/SKTFCUMainPipeData.h"

// One coordinate of a point of the record.
template <typename Record> struct PointCoordinate {
  AcGePoint3d Record::*point;
  double AcGePoint3d::*coordinate;
};

template <typename Record> struct ConnectionField {
  const wchar_t* attribute;
  std::variant<CString Record::*, double Record::*, PointCoordinate<Record>> target;
};

// The end of the connection as both kinds store it.
#define ZP_CONNECTION_POINTS(Record)                                                                         \
  {L"Startx", PointCoordinate<Record>{&Record::ptStart, &AcGePoint3d::x}},                                   \
      {L"Starty", PointCoordinate<Record>{&Record::ptStart, &AcGePoint3d::y}},                               \
      {L"Endx", PointCoordinate<Record>{&Record::ptEnd, &AcGePoint3d::x}}, {                                 \
    L"Endy", PointCoordinate<Record> {                                                                       \
      &Record::ptEnd, &AcGePoint3d::y                                                                        \
    }                                                                                                        \
  }

inline constexpr ConnectionField<SKTFCUMainPipeData> kPipeConnectionFields[] = {
    ZP_CONNECTION_POINTS(SKTFCUMainPipeData),       {L"PipeDia", &SKTFCUMainPipeData::szPipeDia},
    {L"Delv", &SKTFCUMainPipeData::dbDelv},         {L"YcLength", &SKTFCUMainPipeData::dbYcLength},
    {L"PipeDist", &SKTFCUMainPipeData::dbPipeDist},
};

inline constexpr ConnectionField<SKTFCUDuctData> kDuctConnectionFields[] = {
    ZP_CONNECTION_POINTS(SKTFCUDuctData),         {L"Delv", &SKTFCUDuctData::dbDelv},
    {L"YcLength", &SKTFCUDuctData::dbYcLength},   {L"FaceHeight", &SKTFCUDuctData::dbFaceHeight},
    {L"FaceWidth", &SKTFCUDuctData::dbFaceWidth}, {L"Shape", &SKTFCUDuctData::szShape},
};

#undef ZP_CONNECTION_POINTS
