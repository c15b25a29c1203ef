// The extended-data key by which a layer of a drawing remembers the identifier it stands for.
#pragma once

inline constexpr const wchar_t* kLayerMarkKey = L"图层标识";
