using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>What stands before the records of a symbol table.</summary>
internal sealed class CadTableHead : CadOwnedObjectBase
{
    internal string Name { get; set; } = "";

    internal override string DxfName => "TABLE";

    internal override bool ReadCode(int code, DxfTagReader tags)
    {
        switch (code)
        {
            case 2:
                Name = tags.GetName();
                return true;
            case 70:
                // The number of records is counted when it is written.
                return true;
            default:
                return false;
        }
    }
}
