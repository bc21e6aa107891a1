using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A setting of the drawing.</summary>
[CadObject("DICTIONARYVAR", Subclass = "DictionaryVariables")]
[CadBits("RC ObjectSchemaNumber", "T Value")]
public partial class CadDictionaryVar : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadDictionaryVar()
    {
    }

    /// <summary>Gets or sets the version of the object. Group code 280.</summary>
    [CadShort(280)]
    public short ObjectSchemaNumber { get; set; }

    /// <summary>Gets or sets the value. Group code 1.</summary>
    [CadString(1)]
    public string Value { get; set; } = "";
}
