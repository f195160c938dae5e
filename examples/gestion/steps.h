// The steps of the demonstration; each throws when something is not as it should be.
#pragma once

#include <string>

#include "business_script.h"
#include "setting.h"

namespace gestion {

void show_version(const Setting& setting);

// The parameter file from its creation to its refusal.
void show_parameter_file(const Setting& setting);

// The strings of the parameters in the file; the administrator's is the answer.
std::wstring show_connection_strings(const Setting& setting);

// The database from its definition, and the updates up to the last version. What all their scripts hold is the answer.
BusinessScript show_definition(const Setting& setting, const std::wstring& connection_string);
BusinessScript show_updates(const Setting& setting, const BusinessScript& definition,
                            const std::wstring& connection_string);

// A script with a wrong command, once for each answer to the library's question. Rows that stay are added to `script`.
void show_failures(const Setting& setting, BusinessScript& script, const std::wstring& connection_string);

// A list of the orders: narrowed, sorted, restored, kept and taken up again.
void show_query(const Setting& setting, const std::wstring& connection_string);

// Orders of these days come in; dates in words find those that the same dates in figures find.
void show_dates_in_words(const std::wstring& connection_string);

void show_rows(const BusinessScript& script, const std::wstring& connection_string);

}  // namespace gestion
