#include "platform/report/Report.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace report {

namespace {

[[noreturn]] void missing(const QString& what, const QString& where)
{
    throw std::logic_error((u"No %1 on %2"_s.arg(what, where)).toStdString());
}

bool isNamed(const QString& name, const QString& wanted)
{
    return name.compare(wanted, Qt::CaseInsensitive) == 0;
}

} // namespace

void Control::place(int left, int top, int width, int height)
{
    Left = left;
    Top = top;
    Width = width;
    Height = height;
}

template <typename Kind>
Kind& Section::add(const QString& name)
{
    auto control = std::make_unique<Kind>(name);
    Kind& added = *control;
    m_controls.push_back(std::move(control));
    return added;
}

template <typename Kind>
Kind& Section::find(const QString& name)
{
    for (const auto& control : m_controls) {
        if (auto* found = dynamic_cast<Kind*>(control.get()); found && isNamed(found->Name, name))
            return *found;
    }
    missing(name, Name);
}

template Label& Section::find(const QString&);
template Field& Section::find(const QString&);
template Image& Section::find(const QString&);
template Shape& Section::find(const QString&);

Label& Section::addLabel(const QString& name, const QString& caption)
{
    Label& label = add<Label>(name);
    label.Caption = caption;
    return label;
}

Field& Section::addField(const QString& name, const QString& dataField, const QString& format)
{
    Field& field = add<Field>(name);
    field.DataField = dataField;
    field.Format = format;
    return field;
}

Image& Section::addImage(const QString& name) { return add<Image>(name); }

Shape& Section::addShape(const QString& name) { return add<Shape>(name); }

Barcode& Section::addBarcode(const QString& name, const QString& dataField)
{
    auto& barcode = add<Barcode>(name);
    barcode.DataField = dataField;
    return barcode;
}

Section& Report::addSection(const QString& name, Band band, int height)
{
    m_sections.push_back(std::make_unique<Section>(name, band, height));
    return *m_sections.back();
}

Section& Report::section(const QString& name)
{
    for (const auto& section : m_sections) {
        if (isNamed(section->Name, name))
            return *section;
    }
    missing(name, Title);
}

} // namespace report
