using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadTables;

/// <summary>A record of a symbol table: something with a name that entities refer to.</summary>
public abstract partial class CadSymbolTableGroupCodes : CadOwnedObjectBase
{
    private string _name = "";

    internal CadSymbolTableGroupCodes()
    {
    }

    /// <inheritdoc/>
    public override string Key => Name;

    /// <summary>Gets or sets the name. Group code 2.</summary>
    /// <exception cref="CadException">The name has a character that such a record cannot have in its name.</exception>
    public string Name
    {
        get => _name;
        set
        {
            Verify.NotNull(value);
            VerifyName(value);
            _name = value;
        }
    }

    /// <summary>Gets or sets properties of the record: 1 frozen layer, 4 locked layer or vertical style, 16 and 32 of
    /// external references, 64 in use. Group code 70.</summary>
    public short Flags { get; set; }

    /// <summary>Gives the kind and name of the record in one line.</summary>
    /// <returns>The kind and name of the record in one line.</returns>
    public override string ToString() => $"{DxfName} {Name}";

    /// <summary>Takes a name over as it is in the file.</summary>
    internal void StoreName(string name) => _name = name;

    /// <summary>Refuses a name that such a record cannot have; files are read whatever names are in them.</summary>
    private protected virtual void VerifyName(string name)
    {
    }

    /// <inheritdoc/>
    internal override bool ReadField(int code, FieldReader reader)
    {
        switch (code)
        {
            case 2:
                _name = reader.GetName();
                return true;
            case 70:
                Flags = reader.GetShort();
                return true;
            default:
                return false;
        }
    }

    /// <inheritdoc/>
    internal override void Exchange(ObjectExchange fields)
    {
        fields.BeginSubclass("AcDbSymbolTableRecord");
    }

    /// <summary>Carries the fields that come first after the marker of the record.</summary>
    internal virtual void ExchangeNameAndFlags(ObjectExchange fields)
    {
        ExchangeName(fields);
        Flags = fields.Int16(70, Flags);
    }

    private protected void ExchangeName(ObjectExchange fields) => _name = fields.Text(2, _name);
}
