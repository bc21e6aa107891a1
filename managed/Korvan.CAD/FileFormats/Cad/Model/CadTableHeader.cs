using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>The header of a symbol table.</summary>
internal sealed class CadTableHeader : CadOwnedObjectBase
{
    internal string Name { get; set; } = "";

    internal override string DxfName => "TABLE";

    internal override bool ReadField(int code, FieldReader reader)
    {
        switch (code)
        {
            case 2:
                Name = reader.GetName();
                return true;
            case 70:
                // The number of records is counted when it is written.
                return true;
            default:
                return false;
        }
    }
}
