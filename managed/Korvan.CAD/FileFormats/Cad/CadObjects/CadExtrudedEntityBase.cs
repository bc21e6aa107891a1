namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A flat entity: it lies in a plane across its extrusion direction and may have a thickness along
/// it.</summary>
public abstract partial class CadExtrudedEntityBase : CadEntityBase
{
    internal CadExtrudedEntityBase()
    {
    }

    /// <summary>Gets or sets the height of the entity along its extrusion direction; 0 for none. Group code
    /// 39.</summary>
    [CadDouble(39, Optional = true)]
    public double Thickness { get; set; }

    /// <summary>Gets or sets the unit normal of the plane that the coordinates of the entity are in (its object
    /// coordinate system). Group codes 210, 220, 230.</summary>
    [Cad3DPoint(210, Optional = true)]
    public Cad3DPoint ExtrusionDirection { get; set; } = new(0, 0, 1);
}
