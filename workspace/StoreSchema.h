#pragma once

class QSqlDatabase;

/// The tables of the workspace store. There is no version number in it: an older store is known by
/// the columns it lacks.
namespace storeschema {

/// Creates the tables that are missing and adds the columns that older versions did not have.
/// Statement by statement, without a transaction: what a failure leaves undone is done at the next
/// start.
/// @return  false after the first failure, which is logged
[[nodiscard]] bool update(const QSqlDatabase& database);

}  // namespace storeschema
