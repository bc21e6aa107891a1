namespace Korvan.CAD.FileFormats.Ifc;

/// <summary>A value of an EXPRESS select type: of one of several types.</summary>
public interface IIfcSelect
{
    /// <summary>Gets the name of the selected type, such as IfcLabel or IfcWall.</summary>
    string TypeName { get; }

    /// <summary>Gets the value without its type: a string, a number, a Boolean, bytes, a list or an entity; for an
    /// enumeration the name of the item.</summary>
    object? Value { get; }

    /// <summary>Gets the selected entity; <see langword="null"/> if it is a value of a defined type.</summary>
    IIfcEntity? Entity { get; }
}
