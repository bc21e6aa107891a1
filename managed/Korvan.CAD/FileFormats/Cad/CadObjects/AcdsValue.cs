using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A value of a record of the data section.</summary>
[CadSequence]
internal sealed partial class AcdsValue
{
    /// <summary>Gets or sets the name. Group code 2.</summary>
    [CadString(2)]
    public string Name { get; set; } = "";

    /// <summary>Gets or sets the type. Group code 280.</summary>
    [CadShort(280)]
    public short DataType { get; set; }

    /// <summary>The type of binary data.</summary>
    internal const short BinaryType = 15;

    private const int HandleCode = 320;

    /// <summary>Gets or sets the handle of an object; empty for none.</summary>
    internal string Handle { get; set; } = "";

    /// <summary>Gets or sets the data.</summary>
    internal byte[] Data { get; set; } = [];

    partial void OnExchange(ObjectExchange fields)
    {
        if (fields.Has(HandleCode, 0, Handle.Length > 0))
        {
            Handle = fields.Handle(HandleCode, HandleRole.SoftPointer, Handle);
        }

        if (DataType == BinaryType)
        {
            fields.Int32(94, Data.Length);
            Data = fields.Binary(310, Data);
        }
    }
}
