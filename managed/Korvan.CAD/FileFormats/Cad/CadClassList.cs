using System.Collections.Generic;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The classes that programs added to a drawing.</summary>
public class CadClassList : NonGenericList
{
    private readonly NamedObjects<CadClassEntity> _items;

    internal CadClassList()
        : this(new NamedObjects<CadClassEntity>("class"))
    {
    }

    private CadClassList(NamedObjects<CadClassEntity> items)
        : base(items)
    {
        _items = items;
    }

    /// <summary>Gets the names, in order.</summary>
    public string[] Names => [.. _items.Items.ConvertAll(static item => item.Key)];

    internal List<CadClassEntity> Items => _items.Items;

    /// <summary>Gets a class by its place, from 0.</summary>
    /// <param name="index">The place.</param>
    public CadClassEntity this[int index] => _items.Items[index];

    /// <summary>Gets a class by its name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <exception cref="CadException">There is none of this name.</exception>
    public CadClassEntity this[string name] => Get(name);

    /// <summary>Gives a class by its name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>What has this name. <see cref="Find"/> gives nothing where there is none.</returns>
    /// <exception cref="CadException">There is none of this name.</exception>
    public CadClassEntity Get(string name) => Find(name)
        ?? throw new CadException($"The drawing has no class called '{name}'.");

    /// <summary>Finds a class; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>What was found, or nothing.</returns>
    public CadClassEntity? Find(string name) => _items.Find(name);

    /// <summary>Tells whether there is a class of a name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>Whether there is a class of a name.</returns>
    public bool Contains(string name) => _items.Find(name) is not null;

    /// <summary>Adds a class.</summary>
    /// <param name="item">What is added.</param>
    public void Add(CadClassEntity item) => _items.Add(item);

    /// <summary>Removes a class.</summary>
    /// <param name="item">What is removed.</param>
    /// <returns>Whether it was there.</returns>
    public bool Remove(CadClassEntity item) => _items.Remove(item);

    /// <summary>Gives all, in order.</summary>
    /// <returns>All, in order.</returns>
    public List<CadClassEntity>.Enumerator GetEnumerator() => _items.Items.GetEnumerator();
}
