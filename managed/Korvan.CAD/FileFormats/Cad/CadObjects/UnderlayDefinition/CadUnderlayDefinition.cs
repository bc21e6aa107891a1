using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.UnderlayDefinition;

/// <summary>The file and page that underlays show.</summary>
[CadObject("", Subclass = "AcDbUnderlayDefinition")]
[CadBits("T FileName", "T ItemName")]
public abstract partial class CadUnderlayDefinition : CadObjectBase
{
    internal CadUnderlayDefinition()
    {
    }

    /// <summary>Gets or sets the path of the file, as the drawing states it. Group code 1.</summary>
    [CadString(1)]
    public string FileName { get; set; } = "";

    /// <summary>Gets or sets the page, sheet or model of the file. Group code 2.</summary>
    [CadString(2)]
    public string ItemName { get; set; } = "";
}
