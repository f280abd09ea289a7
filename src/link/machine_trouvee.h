// A box that runs or heats although this program drives it not: found out whenever the link is looked at,
// told, and stopped where the user wants it. Its queue and its heat outlive the program that began them.
#pragma once

namespace tessarel {

enum class MachineTrouvee {
    Libre,   // at rest, or nothing is known against it
    Arretee, // stopped, the heat off, and told: the wire stands anywhere
    Laissee  // by the user's answer, or because it did not obey: nothing may be sent but what asks or stops
};

enum class QuestionMachine {
    Posee,
    PoseeUneFois // not for a machine that the user has left running already
};

// Asks a box that is there, outside of any move of this program; a heat that it has lit itself is none of
// this, nor is one that the knob of the box rules. What a reply says is believed once the next ones agree.
// Sets MachineLaissee.
MachineTrouvee ControlerMachine(QuestionMachine question);

} // namespace tessarel
