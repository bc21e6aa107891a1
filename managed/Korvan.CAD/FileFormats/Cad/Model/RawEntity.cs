using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>An entity of a type without a class: only the fields that all entities have are interpreted.</summary>
internal sealed class RawEntity(string dxfName) : CadEntityBase, IModelerData
{
    List<string>? IModelerData.ModelerChunks { get; set; }

    internal override string DxfName => dxfName;

    internal override bool ReadField(int code, FieldReader reader)
    {
        return reader.Subclass is null or "AcDbEntity" && base.ReadField(code, reader);
    }
}
