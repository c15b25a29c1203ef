#include "plugin/resistance/dialogs/CoefficientField.h"

#include "host/afx/Numbers.h"

void resistance::ShowCoefficient(CNumberEdit& field, double coefficient) {
  std::string text = afx::ShortestDouble(coefficient);
  if (text.ends_with(".0")) text.resize(text.size() - 2);
  field.SetText(CString::FromUtf8(text));
}
