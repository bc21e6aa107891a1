using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.ObjectContextData;

/// <summary>The appearance of an annotative object at one annotation scale.</summary>
[CadSequence]
[CadObject("", Subclass = "AcDbObjectContextData")]
[CadBits("BS ContextVersion", "B IsDefault", "H ScaleHandle")]
public abstract partial class CadAcDbObjectContextData : CadObjectBase
{
    internal CadAcDbObjectContextData()
    {
    }

    /// <summary>Gets or sets the version of the data. Group code 70.</summary>
    [CadShort(70)]
    public short ContextVersion { get; set; } = 3;

    /// <summary>Gets or sets whether the object has this appearance by default. Group code 290.</summary>
    [CadBool(290)]
    public bool IsDefault { get; set; }

    /// <summary>Gets or sets the handle of the annotation scale in hexadecimal. Group code 340.</summary>
    [CadHandle(340)]
    [CadSubclass("AcDbAnnotScaleObjectContextData")]
    public string ScaleHandle { get; set; } = "0";
}
