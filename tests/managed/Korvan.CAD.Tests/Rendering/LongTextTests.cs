using System;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Rendering.Text;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Multi-line texts that are long, or made to take long: work and memory are in proportion to them.</summary>
public sealed class LongTextTests
{
    private const int Count = 100_000;

    private static readonly MTextFormat Start = new(
        FontSpec.Default, 1, 1, 0, 1, default, StackAlign.Baseline, false, false, false, false);

    public static TheoryData<string, int, double> Texts => new()
    {
        // Each of these took time that grew with the square of the length, or a call for each character.
        { string.Concat(Enumerable.Repeat("a ", Count)), Count, 0 },
        { string.Concat(Enumerable.Repeat("a ", Count)), Count, 30 },
        { new string(' ', Count) + string.Concat(Enumerable.Repeat("a ", Count)), Count, 0 },
        { "a" + new string(' ', Count), 1, 0 },
        { string.Concat(Enumerable.Repeat("\\La\\la", Count)), 2 * Count, 0 },
        { string.Concat(Enumerable.Repeat("a\\P", Count)), Count, 10 },
        { string.Concat(Enumerable.Repeat("\\f", Count)), Count, 0 },
        { string.Concat(Enumerable.Repeat("\\S\\;", Count / 10)), Count / 5, 0 },
        { "\\p" + new string('x', 1000) + ";a", 1, 0 },
        { string.Concat(Enumerable.Repeat("\\p" + new string('x', 1000) + "t4,8;", 100)) + "a", 1, 0 },
        { "\\pt" + string.Join(',', Enumerable.Range(1, 250)) + ";" + new string('\t', Count) + "a", 1, 0 },
    };

    [Theory]
    [MemberData(nameof(Texts))]
    public void Work_and_memory_are_in_proportion_to_the_text(string text, int runs, double width)
    {
        const int maxBytesPerCharacter = 260;
        using var engine = new TextEngine();
        engine.Advance(engine.Font(FontSpec.Default), "a");
        long before = GC.GetAllocatedBytesForCurrentThread();
        MTextLayout layout = MTextLayout.Create(
            engine, MTextParser.Parse(text, Start), new MTextFrame(width, 1, 1, true), 1);
        int found = layout.Runs.Count();
        long allocated = GC.GetAllocatedBytesForCurrentThread() - before;
        Assert.Equal(runs, found);
        Assert.InRange(allocated, 0, Math.Max(1L << 20, (long)text.Length * maxBytesPerCharacter));
    }

    [Fact]
    public void Tokens_are_read_one_by_one_and_end_with_the_budget()
    {
        string text = string.Concat(Enumerable.Repeat("{\\C1;\\H2x;a}", Count));
        using var budget = Budget.Begin(null, timeout: 1);
        Action read = () =>
        {
            while (MTextParser.Parse(text, Start).Any())
            {
                Assert.NotEmpty(MTextParser.Parse(text, Start).Skip(1));
            }
        };
        Assert.Throws<OperationInterruptedException>(read);
    }
}
