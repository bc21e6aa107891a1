namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A line without end.</summary>
public abstract partial class CadBaseInfinityEntity : CadEntityBase
{
    internal CadBaseInfinityEntity()
    {
    }

    /// <summary>Gets or sets a point of the line, in world coordinates; of a ray its start. Group codes 10, 20,
    /// 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint FirstPoint { get; set; } = new();

    /// <summary>Gets or sets the direction, a unit vector. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11)]
    public Cad3DPoint UnitDirection { get; set; } = new(1, 0, 0);
}
