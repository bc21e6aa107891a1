using Korvan.CAD.FileFormats.Ifc.Schema;

namespace Korvan.CAD.FileFormats.Ifc.Model;

/// <summary>An instance of an entity that is unknown or abstract, or a complex instance of several entities. It is kept
/// as it was read.</summary>
internal sealed class OpaqueEntity : IfcEntityBase
{
    internal OpaqueEntity(IfcSchema schema, string name)
    {
        Class = new IfcClass(schema, new SchemaEntity(name, null, false), null, -1);
    }
}
