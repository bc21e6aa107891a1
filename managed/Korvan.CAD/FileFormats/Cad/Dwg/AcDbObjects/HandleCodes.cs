namespace Korvan.CAD.FileFormats.Cad.Dwg.AcDbObjects;

/// <summary>The kinds of references in drawing databases. Source: Open Design Specification for .dwg files, 5.4.1,
/// chapter 2.13.</summary>
public static class HandleCodes
{
    /// <summary>Gets the code of a handle that is a value, not a reference: 0.</summary>
    public static int Undefined => 0;

    /// <summary>Gets the code of a soft ownership reference: 2. The owner does not need the object.</summary>
    public static int SoftOwner => 2;

    /// <summary>Gets the code of a hard ownership reference: 3. The owner needs the object.</summary>
    public static int HardOwner => 3;

    /// <summary>Gets the code of a soft pointer: 4. Neither object needs the other one.</summary>
    public static int SoftPointer => 4;

    /// <summary>Gets the code of a hard pointer: 5. The referencing object needs the other one.</summary>
    public static int HardPointer => 5;

    /// <summary>Gets the code of a soft pointer to the next handle: 6.</summary>
    public static int Next => 6;

    /// <summary>Gets the code of a soft pointer to the handle before: 8.</summary>
    public static int Previous => 8;

    /// <summary>Gets the code of a soft pointer whose handle is greater by an offset: 10.</summary>
    public static int PlusOffset => 10;

    /// <summary>Gets the code of a soft pointer whose handle is less by an offset: 12.</summary>
    public static int MinusOffset => 12;
}
