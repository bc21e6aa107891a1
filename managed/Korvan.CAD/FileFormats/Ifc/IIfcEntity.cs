using System.Collections.Generic;
using Korvan.CAD.CadExceptions.ImageFormats;

namespace Korvan.CAD.FileFormats.Ifc;

/// <summary>An instance of an entity of the schema, whatever its class.</summary>
public interface IIfcEntity
{
    /// <summary>Gets the number of the instance in its file, which stands behind the # sign; 0 until it belongs to a
    /// model.</summary>
    long InstanceId { get; }

    /// <summary>Gets the name of the entity as the schema spells it, such as IfcWall.</summary>
    string EntityName { get; }

    /// <summary>Gets the names of the attributes in the order of the file, inherited ones first.</summary>
    IReadOnlyList<string> AttributeNames { get; }

    /// <summary>Gets the names of the inverse attributes.</summary>
    IReadOnlyList<string> InverseNames { get; }

    /// <summary>Gets the instances of the model that refer to this one, in the order of the file.</summary>
    IReadOnlyList<IIfcEntity> Referrers { get; }

    /// <summary>Tells whether the instance is of an entity or of one that is derived from it.</summary>
    /// <param name="entityName">The name in the schema, in any case, with or without the edition behind it.</param>
    bool IsA(string entityName);

    /// <summary>Gives the value of an attribute: a text, a number, a truth value, bytes, an entity, a select value, a
    /// list, or nothing. An item of an enumeration is given by its name.</summary>
    /// <param name="name">The name in the schema, in any case.</param>
    /// <exception cref="IfcImageException">There is no such attribute, or its value is not of its type.</exception>
    object? GetAttribute(string name);

    /// <summary>Gives the value of an attribute by its place.</summary>
    /// <param name="index">The place in the order of the file, from 0.</param>
    /// <exception cref="IfcImageException">There is no such attribute, or its value is not of its type.</exception>
    object? GetAttribute(int index);

    /// <summary>Sets an attribute.</summary>
    /// <param name="name">The name in the schema, in any case.</param>
    /// <param name="value">A value of its type, or nothing. A list is copied.</param>
    /// <exception cref="IfcImageException">There is no such attribute, or the value is not of its type.</exception>
    void SetAttribute(string name, object? value);

    /// <summary>Sets an attribute by its place.</summary>
    /// <param name="index">The place in the order of the file, from 0.</param>
    /// <param name="value">A value of its type, or nothing. A list is copied.</param>
    /// <exception cref="IfcImageException">There is no such attribute, or the value is not of its type.</exception>
    void SetAttribute(int index, object? value);

    /// <summary>Gives the instances that an inverse attribute stands for, in the order of the file.</summary>
    /// <param name="name">The name in the schema, in any case.</param>
    /// <exception cref="IfcImageException">There is no such inverse attribute.</exception>
    IReadOnlyList<IIfcEntity> GetInverse(string name);
}
