namespace Korvan.CAD.FileFormats.Cad;

/// <summary>States that a property is a width and a height, each with a group code.</summary>
public sealed class CadSizeAttribute : CadPropertyAttribute
{
    /// <summary>Creates the statement.</summary>
    /// <param name="code">The group code of the width.</param>
    /// <param name="heightCode">The group code of the height.</param>
    public CadSizeAttribute(int code, int heightCode)
        : base(code)
    {
        HeightCode = heightCode;
    }

    /// <summary>Gets the group code of the height.</summary>
    public int HeightCode { get; }
}
