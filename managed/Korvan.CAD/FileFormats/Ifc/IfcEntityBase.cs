using System.Collections.Generic;
using System.Linq;
using System.Text;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Ifc.Model;
using Korvan.CAD.FileFormats.Ifc.Schema;

namespace Korvan.CAD.FileFormats.Ifc;

/// <summary>The base of the entities of all schema versions. An instance that was read decodes its record at the first
/// access to an attribute. An instance that was created in memory belongs to no model until it is added to
/// one.</summary>
[PythonMostDerived]
public abstract partial class IfcEntityBase : IIfcEntity, IIfcType
{
    private IfcClass? _class;

    /// <inheritdoc/>
    public long InstanceId { get; internal set; }

    /// <inheritdoc/>
    public string EntityName => Class.Name;

    /// <inheritdoc/>
    public string TypeName => Class.Name;

    /// <inheritdoc/>
    public object? PlainValue => this;

    /// <inheritdoc/>
    public IReadOnlyList<string> AttributeNames => [.. Class.Attributes.Select(one => one.Name)];

    /// <inheritdoc/>
    public IReadOnlyList<string> InverseNames => [.. Class.Inverses.Select(one => one.Name)];

    /// <inheritdoc/>
    public IReadOnlyList<IIfcEntity> Referrers => Model?.References.Referrers(this) ?? [];

    internal IfcClass Class
    {
        get => _class ??= IfcSchema.ClassOf(GetType());
        set => _class = value;
    }

    /// <summary>Gets or sets the model that the instance belongs to.</summary>
    internal IfcModel? Model { get; set; }

    /// <summary>Gets or sets the index of its record in the file; -1 for an instance that was created in
    /// memory.</summary>
    internal int Record { get; set; } = -1;

    /// <inheritdoc/>
    public bool IsA(string entityName)
    {
        Verify.NotNull(entityName);
        return Class.Schema.FindClassOrType(entityName) is { } other && Class.IsA(other);
    }

    /// <inheritdoc/>
    public object? GetAttribute(string name) => GetAttribute(NumberOf(name));

    /// <inheritdoc/>
    public object? GetAttribute(int index)
    {
        VerifyIndex(index);
        return IfcPresentation.Present(this, index);
    }

    /// <inheritdoc/>
    public void SetAttribute(string name, object? value) => SetAttribute(NumberOf(name), value);

    /// <inheritdoc/>
    public void SetAttribute(int index, object? value)
    {
        VerifyIndex(index);
        Put(index, value);
    }

    /// <inheritdoc/>
    public IReadOnlyList<IIfcEntity> GetInverse(string name)
    {
        Verify.NotNull(name);
        int at = Class.InverseNumber(name);
        return at >= 0
            ? InverseAt(at)
            : throw new IfcImageException($"{Class.Name} has no inverse attribute '{name}'.");
    }

    /// <summary>Returns the record as it is in the file or, for new and changed instances, as it would be
    /// written.</summary>
    /// <returns>The record.</returns>
    public override string ToString()
    {
        if (Model is { } model && Record >= 0 && Changed == 0)
        {
            return model.TextOf(Record);
        }

        StringBuilder text = new();
        IfcRecordWriter.Write(this, text, true);
        return text.ToString();
    }

    /// <summary>Returns instance and attribute for a message.</summary>
    internal string Describe(int attribute)
    {
        IfcAttributeInfo info = Class.Attributes[attribute];
        return $"{DescribePlace()}attribute {info.Name} of type {info.Form.Describe()}";
    }

    /// <summary>Returns the instance for a message.</summary>
    internal string DescribePlace()
    {
        string line = Model is { } model && Record >= 0 ? $"line {model.LineOf(Record)}, " : string.Empty;
        return InstanceId > 0 ? $"{line}#{InstanceId}={Class.Keyword}: " : $"{Class.Name}: ";
    }

    private int NumberOf(string name)
    {
        Verify.NotNull(name);
        int at = Class.AttributeNumber(name);
        return at >= 0
            ? at
            : throw new IfcImageException(
                $"{Class.Name} has no attribute '{name}'; it has {string.Join(", ", AttributeNames)}.");
    }

    private void VerifyIndex(int index)
    {
        if ((uint)index >= (uint)Class.Attributes.Length)
        {
            throw new IfcImageException(
                $"{Class.Name} has {Class.Attributes.Length} attributes, counted from 0; there is no attribute "
                    + $"{index}.");
        }
    }
}
