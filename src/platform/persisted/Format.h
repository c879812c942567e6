#pragma once

/// Names that ADO's persisted-recordset XML fixes.
namespace persisted {

/// Namespaces of the schema, its data types and the row set; that of the rows is '#' and the schema's id.
inline constexpr char schemaSpace[] = "uuid:BDC6E3F0-6DA3-11d1-A2A3-00AA00C14882";
inline constexpr char typeSpace[] = "uuid:C2F41010-65B3-11d1-A29F-00AA00C14882";
inline constexpr char rowsetSpace[] = "urn:schemas-microsoft-com:rowset";

}  // namespace persisted
