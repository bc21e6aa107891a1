using System.Collections.Generic;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The blocks of a drawing, model and paper space among them.</summary>
public class CadBlockDictionary : NonGenericDictionary
{
    private readonly NamedObjects<CadBlockEntity> _items;

    internal CadBlockDictionary()
        : this(new NamedObjects<CadBlockEntity>("block"))
    {
    }

    private CadBlockDictionary(NamedObjects<CadBlockEntity> items)
        : base(new NamedEntries<CadBlockEntity>(items))
    {
        _items = items;
    }

    /// <summary>Gets the names, in order.</summary>
    public string[] Names => [.. _items.Items.ConvertAll(static item => item.Key)];

    internal List<CadBlockEntity> Items => _items.Items;

    /// <summary>Gets a block by its place, from 0.</summary>
    /// <param name="index">The place.</param>
    public CadBlockEntity this[int index] => _items.Items[index];

    /// <summary>Gets a block by its name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <exception cref="CadException">There is none of this name.</exception>
    public CadBlockEntity this[string name] => Get(name);

    /// <summary>Gives a block by its name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>What has this name. <see cref="Find"/> gives nothing where there is none.</returns>
    /// <exception cref="CadException">There is none of this name.</exception>
    public CadBlockEntity Get(string name) => Find(name)
        ?? throw new CadException($"The drawing has no block called '{name}'.");

    /// <summary>Finds a block; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>What was found, or nothing.</returns>
    public CadBlockEntity? Find(string name) => _items.Find(name);

    /// <summary>Tells whether there is a block of a name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>Whether there is a block of a name.</returns>
    public bool Contains(string name) => _items.Find(name) is not null;

    /// <summary>Adds a block.</summary>
    /// <param name="item">What is added.</param>
    public void Add(CadBlockEntity item) => _items.Add(item);

    /// <summary>Removes a block.</summary>
    /// <param name="item">What is removed.</param>
    /// <returns>Whether it was there.</returns>
    public bool Remove(CadBlockEntity item) => _items.Remove(item);

    /// <summary>Gives all, in order.</summary>
    /// <returns>All, in order.</returns>
    public List<CadBlockEntity>.Enumerator GetEnumerator() => _items.Items.GetEnumerator();
}
