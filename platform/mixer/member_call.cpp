// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/mixer/member_call.h"

#include <QMetaMethod>

#include <array>
#include <stdexcept>

namespace platform {
namespace {

QMetaMethod findMember(const QMetaObject* type, const QString& member, qsizetype count) {
  for (int i = 0; i < type->methodCount(); ++i) {
    const QMetaMethod method = type->method(i);
    if (method.parameterCount() == count &&
        QString::fromLatin1(method.name()).compare(member, Qt::CaseInsensitive) == 0)
      return method;
  }
  throw std::invalid_argument("no member " + member.toStdString() + " taking " + std::to_string(count) +
                              " arguments");
}

// Game code passes numbers and objects loosely typed; each is made the parameter's type.
QVariant converted(const QVariant& argument, QMetaType type) {
  QVariant value = argument;
  if (type.flags() & QMetaType::PointerToQObject) {
    QObject* object = argument.value<QObject*>();
    return QVariant(type, &object);
  }
  if (!value.convert(type)) throw std::invalid_argument("an argument does not convert");
  return value;
}

}  // namespace

QVariant callMember(QObject* object, const QString& member, const QVariantList& arguments) {
  constexpr qsizetype kMostArguments = 10;
  if (!object || arguments.size() > kMostArguments)
    throw std::invalid_argument("cannot call " + member.toStdString());
  const QMetaMethod method = findMember(object->metaObject(), member, arguments.size());
  std::array<QVariant, kMostArguments> values;
  std::array<QGenericArgument, kMostArguments> passed;
  for (qsizetype i = 0; i < arguments.size(); ++i) {
    values[i] = converted(arguments[i], method.parameterMetaType(int(i)));
    passed[i] = QGenericArgument(method.parameterMetaType(int(i)).name(), values[i].constData());
  }
  QVariant result;
  if (method.returnMetaType().id() != QMetaType::Void) result = QVariant(method.returnMetaType());
  const QGenericReturnArgument returned(method.typeName(), result.isValid() ? result.data() : nullptr);
  method.invoke(object, Qt::DirectConnection, returned, passed[0], passed[1], passed[2], passed[3], passed[4],
                passed[5], passed[6], passed[7], passed[8], passed[9]);
  return result;
}

}  // namespace platform
