#include "samples/AdverseEventTerms.h"

namespace samples {

namespace {

constexpr const char* nervous = "NERVOUS SYSTEM DISORDERS";
constexpr const char* gastrointestinal = "GASTROINTESTINAL DISORDERS";
constexpr const char* infections = "INFECTIONS AND INFESTATIONS";
constexpr const char* skin = "SKIN AND SUBCUTANEOUS TISSUE DISORDERS";
constexpr const char* general = "GENERAL DISORDERS AND ADMINISTRATION SITE CONDITIONS";
constexpr const char* musculoskeletal = "MUSCULOSKELETAL AND CONNECTIVE TISSUE DISORDERS";
constexpr const char* respiratory = "RESPIRATORY, THORACIC AND MEDIASTINAL DISORDERS";
constexpr const char* cardiac = "CARDIAC DISORDERS";
constexpr const char* ear = "EAR AND LABYRINTH DISORDERS";
constexpr const char* vascular = "VASCULAR DISORDERS";
constexpr const char* psychiatric = "PSYCHIATRIC DISORDERS";
constexpr const char* investigations = "INVESTIGATIONS";

constexpr std::array terms{
    EventTerm{"HEADACHE", nervous, {"HEADACHE", "Head ache, both temples", "HEADACHE (MILD)"}},
    EventTerm{"DIZZINESS", nervous, {"DIZZINESS", "dizzy on standing up", "LIGHTHEADED"}},
    EventTerm{"SOMNOLENCE", nervous, {"SOMNOLENCE", "DROWSY", "sleepy after dose"}},
    EventTerm{"DÉJÀ VU", nervous, {"DÉJÀ VU", "déjà-vu feelings", "DÉJÀ VU"}},
    EventTerm{"NAUSEA", gastrointestinal, {"NAUSEA", "Nausea, ≥ 2 episodes", "FELT SICK"}},
    EventTerm{"VOMITING", gastrointestinal, {"VOMITING", "VOMITED ONCE", "Vomiting"}},
    EventTerm{"DIARRHOEA", gastrointestinal, {"DIARRHEA", "LOOSE STOOLS", "Diarrhoea"}},
    EventTerm{"DRY MOUTH", gastrointestinal, {"DRY MOUTH", "MOUTH DRYNESS", "Dry mouth"}},
    EventTerm{"CONSTIPATION", gastrointestinal, {"CONSTIPATION", "CONSTIPATED", "Constipation"}},
    EventTerm{"NASOPHARYNGITIS", infections, {"COMMON COLD", "NASOPHARYNGITIS", "a cold"}},
    EventTerm{"INFLUENZA", infections, {"INFLUENZA", "FLU", "Influenza type \"A\""}},
    EventTerm{"CYSTITIS", infections, {"BLADDER INFECTION", "CYSTITIS", "Cystitis"}},
    EventTerm{"RASH", skin, {"RASH", "Rash on both forearms", "SKIN RASH"}},
    EventTerm{"PRURITUS", skin, {"ITCHING", "PRURITUS", "itch at night"}},
    EventTerm{"URTICARIA", skin, {"HIVES", "URTICARIA", "Urticaria"}},
    EventTerm{"FATIGUE", general, {"FATIGUE", "TIREDNESS", "tired"}},
    EventTerm{"OEDEMA PERIPHERAL", general, {"ANKLE SWELLING", "EDEMA, LEGS", "Ankle œdema"}},
    EventTerm{"PYREXIA", general, {"FEVER", "Fever 38.4 °C", "PYREXIA"}},
    EventTerm{"BACK PAIN", musculoskeletal, {"BACK PAIN", "LOW BACK PAIN", "Backache"}},
    EventTerm{"ARTHRALGIA", musculoskeletal, {"JOINT PAIN", "ARTHRALGIA", "Knee pain"}},
    EventTerm{"MYALGIA", musculoskeletal, {"MUSCLE ACHE", "MYALGIA", "Sore calves"}},
    EventTerm{"COUGH", respiratory, {"COUGH", "DRY COUGH", "Cough"}},
    EventTerm{"EPISTAXIS", respiratory, {"NOSE BLEED", "EPISTAXIS", "Nosebleed 5 min"}},
    EventTerm{"PALPITATIONS", cardiac, {"PALPITATIONS", "HEART RACING", "Palpitations"}},
    EventTerm{"BRADYCARDIA", cardiac, {"BRADYCARDIA", "Pulse < 50", "SLOW PULSE"}},
    EventTerm{"MENIERE'S DISEASE", ear, {"MÉNIÈRE'S DISEASE", "Menière", "MENIERE'S DISEASE"}},
    EventTerm{"TINNITUS", ear, {"TINNITUS", "RINGING IN EAR", "Tinnitus"}},
    EventTerm{"HYPOTENSION", vascular, {"LOW BLOOD PRESSURE", "HYPOTENSION", "BP 88/52"}},
    EventTerm{"HOT FLUSH", vascular, {"HOT FLUSHES", "HOT FLUSH", "flushing"}},
    EventTerm{"INSOMNIA", psychiatric, {"INSOMNIA", "POOR SLEEP", "can't sleep"}},
    EventTerm{"ANXIETY", psychiatric, {"ANXIETY", "ANXIOUS", "Anxiety"}},
    EventTerm{"ALANINE AMINOTRANSFERASE INCREASED",
              investigations,
              {"ALT INCREASED", "ALT 3 x ULN", "RAISED ALT"}},
};

constexpr std::array deadly{
    EventTerm{"MYOCARDIAL INFARCTION", cardiac, {"HEART ATTACK", "ACUTE MI", "MYOC. INFARCTION"}},
    EventTerm{"PNEUMONIA", infections, {"PNEUMONIA", "PNEUMONIA, LEFT LOBE", "Pneumonia"}},
};

constexpr const char* sentences[] = {
    "Began about an hour after the morning tablet.",
    "Subject rested and the complaint passed.",
    "Paracetamol 500 mg was taken twice.",
    "No finding on examination.",
    "The subject's partner reports the same since the weekend.",
    "Seen by Dr. Brévaux, who found no cause.",
    "Blood pressure was 118/74 mmHg.",
    "Similar episodes before the study.",
    "Laboratory values were repeated; \"no change\".",
    "Dose taken with breakfast; advised to take it at night.",
    "Next call agreed for Monday.",
    "Temperature 37.9 °C at home.",
    "A work-up at the hospital of Łódź is planned.",
    "Subject 100% certain it is the tablet & wants to go on.",
    "Resolved without treatment.",
    "Worse on stairs; better lying down.",
};

}  // namespace

std::span<const EventTerm> eventTerms()
{
    return terms;
}

std::span<const EventTerm> fatalTerms()
{
    return deadly;
}

std::span<const char* const> commentSentences()
{
    return sentences;
}

}  // namespace samples
