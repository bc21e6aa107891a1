using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.FileFormats.Cad.CadTables;

/// <summary>A record of a symbol table: something with a name that entities refer to.</summary>
public abstract partial class CadSymbolTableGroupCodes : CadOwnedObjectBase
{
    internal CadSymbolTableGroupCodes()
    {
    }

    /// <inheritdoc/>
    public override string Key => Name;

    /// <summary>Gets or sets the name. Group code 2.</summary>
    public string Name { get; set; } = "";

    /// <summary>Gets or sets properties of the record: 1 frozen layer, 4 locked layer or vertical style, 16 and 32 of
    /// external references, 64 in use. Group code 70.</summary>
    public short Flags { get; set; }

    /// <inheritdoc/>
    internal override bool ReadCode(int code, DxfTagReader tags)
    {
        switch (code)
        {
            case 2:
                Name = tags.GetName();
                return true;
            case 70:
                Flags = tags.GetShort();
                return true;
            default:
                return false;
        }
    }

    /// <inheritdoc/>
    internal override void WriteCodes(DxfTagWriter writer)
    {
        writer.WriteSubclass("AcDbSymbolTableRecord");
    }

    /// <summary>Writes what stands first behind the marker of the record.</summary>
    internal virtual void WriteNameAndFlags(DxfTagWriter writer)
    {
        writer.Write(2, Name);
        writer.Write(70, Flags);
    }
}
