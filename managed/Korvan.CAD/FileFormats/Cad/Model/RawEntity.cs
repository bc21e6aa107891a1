using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>An entity whose own codes nobody interprets; what all entities have in common is.</summary>
internal sealed class RawEntity(string dxfName) : CadEntityBase
{
    internal override string DxfName => dxfName;

    internal override bool ReadCode(int code, DxfTagReader tags)
    {
        return tags.Subclass is null or "AcDbEntity" && base.ReadCode(code, tags);
    }
}
