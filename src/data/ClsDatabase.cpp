#include "data/ClsDatabase.h"

ClsDatabase::ClsDatabase(const DatabaseEngine& engine)
    : m_engine(&engine), m_fileName(QStringLiteral("data.dat"))
{
}

Connection ClsDatabase::Connect() const
{
    QString folder = m_engine->programFolder;
    if (!folder.endsWith(QLatin1Char('/'))) {
        folder += QLatin1Char('/');
    }
    return {
        *m_engine, QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source= ") + folder + m_fileName};
}
