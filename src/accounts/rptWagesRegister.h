#pragma once

#include "accounts/Wages.h"
#include "platform/report/Report.h"

/// The wages of one worker on paper: a row for each line, with the running balance. The heads stand on each
/// page.
class rptWagesRegister : public report::Report
{
public:
    rptWagesRegister();
};

/// Stages the lines and gives the paper over them. Throws ado::DatabaseError.
std::unique_ptr<report::Report> wagesPaper(const std::vector<wages::Line>& lines, const QString& worker);
