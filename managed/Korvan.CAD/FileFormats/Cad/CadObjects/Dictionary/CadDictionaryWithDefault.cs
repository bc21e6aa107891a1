using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;

/// <summary>Objects by names, and one for all other names.</summary>
[CadObject("ACDBDICTIONARYWDFLT", Subclass = "AcDbDictionaryWithDefault")]
[CadBits("base", "H DefaultHandle")]
public partial class CadDictionaryWithDefault : CadDictionary
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadDictionaryWithDefault()
    {
    }

    /// <summary>Gets or sets the handle of the object for all other names in hexadecimal. Group code 340.</summary>
    [CadHandle(340, Optional = true)]
    public string DefaultHandle { get; set; } = "";
}
