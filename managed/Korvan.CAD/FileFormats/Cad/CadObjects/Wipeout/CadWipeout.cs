using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Wipeout;

/// <summary>An area that covers what was drawn before it.</summary>
[CadObject("WIPEOUT", Subclass = "AcDbWipeout")]
[CadBits("base")]
public partial class CadWipeout : CadWipeoutBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadWipeout()
    {
    }
}
