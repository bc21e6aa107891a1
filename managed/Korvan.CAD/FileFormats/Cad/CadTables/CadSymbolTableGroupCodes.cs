using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadTables;

/// <summary>A record of a symbol table: something with a name that entities refer to.</summary>
public abstract partial class CadSymbolTableGroupCodes : CadOwnedObjectBase
{
    private const int DependentFlag = 16;
    private const int DependentFlags = 48;
    private const int ResolvedReference = 256;

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
    /// <summary>Gets or sets the block record of the external reference that the record comes from; 0 for
    /// none.</summary>
    internal ulong ExternalReference { get; set; }

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

    /// <summary>Carries what the records of all tables begin with in drawing databases.</summary>
    private protected void ExchangeRecord(BitExchange fields)
    {
        _name = fields.Text(_name);
        bool isDependent = (Flags & DependentFlag) != 0;
        if (fields.Release < 2007)
        {
            fields.Bit(true);
            fields.BitShort(isDependent ? ResolvedReference : 0);
            isDependent = fields.Bit(isDependent);
        }
        else
        {
            isDependent = fields.BitShort(isDependent ? ResolvedReference : 0) == ResolvedReference;
        }

        Flags = (short)((Flags & ~DependentFlags) | (isDependent ? DependentFlags : 0));
        ExternalReference = fields.Handle(HandleRole.HardPointer, ExternalReference);
    }
}
