using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A value of the records of a schema.</summary>
[CadSequence]
internal sealed partial class AcdsColumn
{
    /// <summary>Gets or sets the name. Group code 2.</summary>
    [CadString(2)]
    public string Name { get; set; } = "";

    /// <summary>Gets or sets the type. Group code 280.</summary>
    [CadShort(280)]
    public short DataType { get; set; }

    /// <summary>Gets or sets a value that text files have. Group code 91.</summary>
    [CadInt(91, Optional = true)]
    public int Reserved { get; set; } = -1;
}
