using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A profile, guide or path of a lofted surface, in the form of binary drawings.</summary>
[CadSequence]
internal sealed partial class LoftEntity
{
    /// <summary>Gets or sets the class of the entity. Group code 90.</summary>
    [CadInt(90)]
    public int EntityClass { get; set; }

    /// <summary>Gets or sets the size of the data in bits, which follows from the data. Group code 90.</summary>
    [CadInt(90)]
    internal int Size
    {
        get => Data.Length * 8;
        set => _ = value;
    }

    /// <summary>Gets or sets the data. Group code 310.</summary>
    [CadBinary(310, Optional = true)]
    public byte[] Data { get; set; } = [];
}
